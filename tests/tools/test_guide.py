"""The user's guide: what stops its build, and what its pages must say."""

import re
import shutil
import struct
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path
from xml.etree import ElementTree

RACINE = Path(__file__).resolve().parents[2]
GUIDE = RACINE / "docs" / "guide"
sys.dont_write_bytecode = True
sys.path.insert(0, str(RACINE / "tools" / "guide"))

from chm import ecrit_projet, mots_cles, options, sommaire  # noqa: E402
from legendes import en_gras, legendes, normalise  # noqa: E402
from pages import Faute, LANGUES, ecrit_guide, lit_guide  # noqa: E402
from verifie import verifie  # noqa: E402

# Entries of the menu that go without words, or name a module that is told under its own name.
HORS_GUIDE = {"Exit (ne rien faire et retourner sur la carte)", "Exit (do nothing and go back to the chart)",
              "Configuration de la carte", "Chart settings", "Position du Soleil", "Position of the Sun"}
PIXEL = bytes.fromhex("89504e470d0a1a0a")


class Dossier(unittest.TestCase):
    """A small guide of two pages in two languages, which each test spoils in its own way."""

    def setUp(self):
        self.source = Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.source)
        (self.source / "pages.txt").write_text("# order\nindex\nautre\n", "utf-8")
        for langue in LANGUES:
            (self.source / langue / "images").mkdir(parents=True)
            (self.source / langue / "images" / "une.png").write_bytes(PIXEL)
            self.ecrit(langue, "index", "# Été\n\n[autre](autre.md#ici)\n\n![une](images/une.png)\n")
            self.ecrit(langue, "autre", "# Autre\n\n## Là d'ici { #ici }\n\n**Calcul** & [site](https://example.org)\n")

    def ecrit(self, langue, nom, texte):
        (self.source / langue / (nom + ".md")).write_text(texte, "utf-8")

    def lit(self):
        guides = {langue: lit_guide(self.source, langue) for langue in LANGUES}
        verifie(self.source, guides)
        return guides

    def faute(self, motif):
        with self.assertRaisesRegex(Faute, motif):
            self.lit()


class Verification(Dossier):
    def test_a_guide_without_fault_passes(self):
        self.assertEqual([page.nom for page in self.lit()["en"]], ["index", "autre"])

    def test_a_link_to_no_page(self):
        self.ecrit("en", "autre", "# Autre\n\n## Là { #ici }\n\n[x](nulle.md)\n")
        self.faute("en/autre.md: link to 'nulle.html'")

    def test_a_link_to_no_anchor(self):
        self.ecrit("fr", "index", "# Été\n\n[autre](autre.md#la)\n\n![une](images/une.png)\n")
        self.faute("an anchor that autre.md doesn't have")

    def test_a_picture_that_is_missing(self):
        (self.source / "fr" / "images" / "une.png").unlink()
        self.faute("the picture 'images/une.png' isn't there")

    def test_a_picture_without_words(self):
        self.ecrit("fr", "index", "# Été\n\n[autre](autre.md#ici)\n\n![](images/une.png)\n")
        self.faute("has no words")

    def test_a_picture_that_no_page_shows(self):
        (self.source / "en" / "images" / "deux.png").write_bytes(PIXEL)
        self.faute("en/images/deux.png: no page shows this picture")

    def test_a_page_missing_in_one_language(self):
        (self.source / "en" / "autre.md").unlink()
        self.faute("en/autre.md is missing")

    def test_a_page_that_is_not_in_the_list(self):
        self.ecrit("fr", "trois", "# Trois\n")
        self.faute("fr/trois.md isn't in pages.txt")

    def test_sections_that_differ(self):
        self.ecrit("en", "autre", "# Autre\n\n## Là { #ici }\n\n## Encore\n")
        self.faute("autre.md: fr and en haven't the same sections")

    def test_a_page_that_is_not_well_formed(self):
        self.ecrit("fr", "autre", "# Autre\n\n## Là { #ici }\n\n<p>ouvert<br></p>\n")
        self.faute("fr/autre.md: the page isn't well-formed")

    def test_a_page_without_a_title(self):
        self.ecrit("fr", "autre", "## Là { #ici }\n")
        self.faute("begin with a heading of the first level")


class Ecriture(Dossier):
    def test_pages_are_utf8_and_lead_to_each_other(self):
        sortie = self.source / "aide"
        sortie.mkdir()
        (sortie / "vieille.html").write_text("x")
        ecrit_guide(self.lit()["fr"], self.source / "fr", sortie, "utf-8")
        self.assertEqual(sorted(f.name for f in sortie.iterdir()), ["autre.html", "guide.css", "images", "index.html"])
        page = (sortie / "index.html").read_text("utf-8")
        self.assertIn('<html lang="fr">', page)
        self.assertIn("<title>Été - Velmaris : le guide</title>", page)
        self.assertIn('<a href="autre.html#ici">', page)
        self.assertIn('<a href="autre.html">Autre →</a>', page)
        self.assertNotIn("{{", page)
        self.assertIn('<a href="https://example.org">', (sortie / "autre.html").read_text("utf-8"))

    def test_the_project_names_what_is_there_in_plain_letters(self):
        sortie = self.source / "chm"
        pages = self.lit()["fr"]
        ecrit_projet(pages, self.source / "fr", sortie)
        self.assertIn(b"&#201;t&#233;", (sortie / "index.html").read_bytes())
        projet = (sortie / "velmaris.hhp").read_text("cp1252")
        fichiers = projet.split("[FILES]")[1].split()
        self.assertEqual(fichiers, ["index.html", "autre.html", "guide.css", "images/une.png"])
        for nom in fichiers:
            self.assertTrue((sortie / nom).is_file(), nom)
        self.assertIn("Été".encode("cp1252"), (sortie / "sommaire.hhc").read_bytes())

    @unittest.skipUnless(shutil.which("chmcmd") and shutil.which("chmls"), "needs chmcmd and chmls")
    def test_the_help_file_holds_every_page_and_picture(self):
        sortie = self.source / "chm"
        ecrit_projet(self.lit()["en"], self.source / "en", sortie)
        subprocess.run(["chmcmd", "--no-html-scan", "velmaris-EN.hhp"], cwd=sortie, check=True, capture_output=True)
        dedans = subprocess.run(["chmls", "list", "velmaris-EN.chm"], cwd=sortie, check=True, capture_output=True).stdout
        for nom in ("index.html", "autre.html", "guide.css", "images/une.png", "sommaire.hhc", "mots.hhk"):
            self.assertIn(f"/{nom}\n".encode(), dedans.replace(b"\r", b""))

    def test_contents_and_index(self):
        pages = self.lit()["en"]
        self.assertIn('<param name="Name" value="Là d\'ici"><param name="Local" value="autre.html#ici">', sommaire(pages))
        mots = re.findall(r'value="([^"]*)"><param name="Local" value="([^"]*)"', mots_cles(pages))
        self.assertIn(("Calcul", "autre.html#ici"), mots)
        self.assertEqual(mots, sorted(set(mots), key=lambda m: m[0].lower()))
        self.assertIn("Compiled file=velmaris-EN.chm", options(LANGUES["en"], pages, []))


class LeGuide(unittest.TestCase):
    """The guide itself."""

    @classmethod
    def setUpClass(cls):
        cls.guides = {langue: lit_guide(GUIDE, langue) for langue in LANGUES}

    def test_links_pictures_and_languages_agree(self):
        verifie(GUIDE, self.guides)

    def test_what_stands_in_bold_is_a_caption_of_the_program(self):
        for langue, pages in self.guides.items():
            connues = legendes(RACINE, langue)
            for page in pages:
                for mots in en_gras(page):
                    self.assertIn(mots, connues, f"{langue}/{page.nom}.md")

    def test_the_boxes_quoted_are_those_of_the_program(self):
        for langue, pages in self.guides.items():
            connues = legendes(RACINE, langue) | {"Fichier absent"}  # what a start without its language file says
            page = next(page for page in pages if page.nom == "depannage")
            boites = re.findall(r'<td>(?:« |")(.*?)(?: »|")</td>', page.corps.replace("&quot;", '"'))
            self.assertGreater(len(boites), 10)
            for boite in map(normalise, boites):
                self.assertTrue(any(mots.startswith(boite) for mots in connues), f"{langue}: {boite}")

    def test_every_choice_and_button_of_the_main_window_is_told(self):
        """What is pressed or chosen, by the control's name: a new one needs its words."""
        for langue, fichier in (("fr", "FR.txt"), ("en", "EN.txt")):
            pages = self.guides[langue]
            dites = {mots for page in pages for mots in en_gras(page) + [normalise(t.texte) for t in page.titres]}
            texte = (RACINE / "data" / fichier).read_text("utf-8").split("Form=FSelect")[0]
            boutons = re.findall(r"^(?:Option1|Option6|Option5|Command\d+|PU_\w+|Label50|Check\d)\\([^\\\n]+)", texte, re.M)
            for legende in set(boutons) - {"\\"}:
                nom = normalise(legende)
                self.assertTrue(nom in dites or nom in HORS_GUIDE, f"{langue}: {legende} isn't told")

    def test_pictures_are_small_and_no_wider_than_a_screen(self):
        octets = 0
        for image in GUIDE.glob("*/images/*.png"):
            donnees = image.read_bytes()
            octets += len(donnees)
            largeur, hauteur = struct.unpack(">II", donnees[16:24])
            self.assertLessEqual(largeur, 1200, image)
            self.assertLessEqual(hauteur, 900, image)
        self.assertLess(octets, 2_500_000)

    def test_lines_end_by_the_column_of_the_house(self):
        for fichier in GUIDE.glob("*/*.md"):
            for numero, ligne in enumerate(fichier.read_text("utf-8").splitlines(), 1):
                if not ligne.startswith("|"):
                    self.assertLessEqual(len(ligne), 120, f"{fichier}:{numero}")

    def test_nothing_is_fetched_from_outside(self):
        for pages in self.guides.values():
            for page in pages:
                arbre = ElementTree.fromstring(f"<page>{page.corps}</page>")
                self.assertFalse(list(arbre.iter("script")) + list(arbre.iter("link")), page.nom)
                for noeud in arbre.iter("img"):
                    self.assertNotIn("//", noeud.get("src"))
        self.assertNotIn("url(", (RACINE / "tools" / "guide" / "guide.css").read_text("utf-8"))


if __name__ == "__main__":
    unittest.main()
