"""What `cmake --install` leaves: every file in its place, and what they tell agreeing with each other."""

import configparser
import os
import re
import struct
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree as ET
from pathlib import Path

SOURCE, BUILD, VERSION, ID = Path(sys.argv[1]), Path(sys.argv[2]), sys.argv[3], sys.argv[4]
TYPE = "application/vnd.velmaris.lop"
COTES = (16, 22, 24, 32, 48, 64, 128, 256, 512)
MIME = "{http://www.freedesktop.org/standards/shared-mime-info}"


def setUpModule():
    global dossier, prefixe, partage
    dossier = tempfile.TemporaryDirectory(prefix="velmaris-installation-")
    prefixe = Path(dossier.name) / "préfixe déplacé"
    subprocess.run(["cmake", "--install", BUILD, "--prefix", prefixe], check=True, stdout=subprocess.DEVNULL)
    partage = prefixe / "share"


def tearDownModule():
    dossier.cleanup()


def lance(programme, *arguments, langue="C.UTF-8"):
    """Runs an installed program in an empty home and off the screen."""
    maison = Path(dossier.name) / "maison"
    maison.mkdir(exist_ok=True)
    environnement = {cle: valeur for cle, valeur in os.environ.items() if not cle.startswith(("XDG_", "LC_"))}
    environnement |= {"HOME": str(maison), "LANG": langue, "QT_QPA_PLATFORM": "offscreen"}
    return subprocess.run([prefixe / "bin" / programme, *arguments], env=environnement, cwd=maison, text=True,
                          capture_output=True, timeout=20)


def entree_bureau():
    lecteur = configparser.ConfigParser(interpolation=None, delimiters=("=",))
    lecteur.optionxform = str
    lecteur.read(partage / f"applications/{ID}.desktop", encoding="utf-8")
    return lecteur["Desktop Entry"]


def metainfo():
    return ET.parse(partage / f"metainfo/{ID}.metainfo.xml").getroot()


def versions_du_journal():
    texte = (SOURCE / "CHANGELOG.md").read_text(encoding="utf-8")
    return re.findall(r"^## \[([0-9.]+)\] - (\d{4}-\d{2}-\d{2})$", texte, flags=re.M)


def options(texte):
    """The long options that a text names."""
    return set(re.findall(r"(?<![\w-])--[a-z][a-z-]*", texte))


def page(nom, langue=""):
    return (partage / "man" / langue / "man1" / f"{nom}.1").read_text(encoding="utf-8").replace("\\-", "-")


class Fichiers(unittest.TestCase):
    def test_every_file_is_in_its_place(self):
        icones = [f"share/icons/hicolor/{cote}x{cote}/{nom}.png" for cote in COTES
                  for nom in (f"apps/{ID}", "mimetypes/" + TYPE.replace("/", "-"))]
        attendus = ["bin/velmaris", "bin/velmaris-calcul", f"share/applications/{ID}.desktop",
                    f"share/metainfo/{ID}.metainfo.xml", f"share/mime/packages/{ID}.xml",
                    f"share/icons/hicolor/scalable/apps/{ID}.svg",
                    "share/icons/hicolor/scalable/mimetypes/" + TYPE.replace("/", "-") + ".svg",
                    "share/doc/velmaris/copyright", "share/doc/velmaris/CHANGELOG.md",
                    *(f"share/man/{langue}man1/{nom}.1" for langue in ("", "fr/")
                      for nom in ("velmaris", "velmaris-calcul")),
                    *("share/velmaris/" + str(f.relative_to(SOURCE / "data"))
                      for f in (SOURCE / "data").rglob("*") if f.is_file())]
        manquent = [f for f in attendus + icones if not (prefixe / f).is_file()]
        self.assertEqual(manquent, [])

    def test_nothing_of_a_template_is_left(self):
        for racine in ("applications", "metainfo", "mime", "man", "doc/velmaris"):
            for fichier in (partage / racine).rglob("*"):
                if fichier.is_file():
                    self.assertIsNone(re.search(r"@[A-Z_0-9]+@", fichier.read_text(encoding="utf-8")), fichier)

    def test_icons_are_as_large_as_their_folder_says(self):
        images = list((partage / "icons").rglob("*.png"))
        self.assertEqual(len(images), 2 * len(COTES))
        for image in images:
            octets = image.read_bytes()
            self.assertEqual(octets[:8], b"\x89PNG\r\n\x1a\n", image)
            largeur, hauteur = struct.unpack(">II", octets[16:24])
            self.assertEqual(f"{largeur}x{hauteur}", image.parts[-3])


class Durcissement(unittest.TestCase):
    """What the programs that are handed out are built with, read from themselves."""

    def setUp(self):
        cache = (BUILD / "CMakeCache.txt").read_text(encoding="utf-8")
        nues = [o for o in ("SANITIZE", "COVERAGE", "FUZZ") if re.search(rf"^VELMARIS_{o}:BOOL=ON$", cache, re.M)]
        if nues or not re.search(r"^CMAKE_BUILD_TYPE:\w+=(Release)?$", cache, re.M):
            self.skipTest("not what is handed out")

    def test_containers_check_their_subscripts(self):
        for programme in ("velmaris", "velmaris-calcul"):
            self.assertIn(b"__glibcxx_assert_fail", (prefixe / "bin" / programme).read_bytes(), programme)

    def test_the_targets_of_jumps_are_marked_where_the_processor_knows_them(self):
        if os.uname().machine != "x86_64":
            self.skipTest("no such marks here")
        # The system's own start files have no marks, so that the programs' notes don't tell of them.
        for programme in ("velmaris", "velmaris-calcul"):
            marques = (prefixe / "bin" / programme).read_bytes().count(b"\xf3\x0f\x1e\xfa")
            self.assertGreater(marques, 100, programme)


class Accord(unittest.TestCase):
    def test_one_version_everywhere(self):
        recente = versions_du_journal()[0]
        self.assertEqual(recente[0], VERSION)
        releases = [(r.get("version"), r.get("date")) for r in metainfo().find("releases")]
        self.assertEqual(releases, versions_du_journal())
        self.assertEqual(lance("velmaris-calcul", "--version").stdout.split()[-1], VERSION)
        for langue in ("", "fr"):
            for nom in ("velmaris", "velmaris-calcul"):
                self.assertIn(f'"Velmaris {VERSION}"', page(nom, langue))

    def test_menu_description_and_file_type_name_each_other(self):
        description = metainfo()
        self.assertEqual(description.findtext("id"), ID)
        self.assertEqual(description.findtext("launchable"), f"{ID}.desktop")
        entree = entree_bureau()
        self.assertEqual(entree["Icon"], ID)
        self.assertEqual(entree["MimeType"], TYPE + ";")
        self.assertEqual(description.findtext("provides/mediatype"), TYPE)
        genre = ET.parse(partage / f"mime/packages/{ID}.xml").getroot().find(MIME + "mime-type")
        self.assertEqual(genre.get("type"), TYPE)
        self.assertEqual(genre.find(MIME + "icon").get("name"), TYPE.replace("/", "-"))

    def test_menu_starts_an_installed_program_and_speaks_both_languages(self):
        entree = entree_bureau()
        self.assertTrue((prefixe / "bin" / entree["Exec"].split()[0]).is_file())
        for cle in ("GenericName", "Comment", "Keywords"):
            self.assertTrue(entree[cle] and entree[cle + "[fr]"], cle)

    def test_debian_change_log_has_every_release_once(self):
        sortie = Path(dossier.name) / "changelog"
        subprocess.run([sys.executable, "-B", SOURCE / "packaging/debian/journal.py", SOURCE / "CHANGELOG.md", "velmaris",
                        "Une équipe <equipe@exemple.org>", sortie], check=True)
        titres = re.findall(r"^velmaris \((.+)\) stable; urgency=medium$", sortie.read_text(encoding="utf-8"), flags=re.M)
        self.assertEqual(titres, [version for version, _ in versions_du_journal()])


class Programmes(unittest.TestCase):
    def test_the_companion_finds_its_words_wherever_it_was_moved(self):
        sortie = lance("velmaris-calcul", "reduit", partage / "velmaris/exemples/21JUN26 120530.LoP").stdout
        self.assertIn('"reduit":true', sortie)
        self.assertIn("Dépression", sortie)

    def test_the_companion_s_pages_tell_its_commands_and_options(self):
        for langue, systeme, titre in (("", "C.UTF-8", "Commands:"), ("fr", "fr_FR.UTF-8", "Verbes:")):
            aide = lance("velmaris-calcul", "--help", langue=systeme).stdout
            verbes = re.findall(r"^  ([a-z]+) ", aide.split(titre)[1], flags=re.M)
            self.assertEqual(len(verbes), 11)
            toutes = options(aide)
            texte = page("velmaris-calcul", langue)
            for verbe in verbes:
                aide = lance("velmaris-calcul", verbe, "--help", langue=systeme).stdout
                toutes |= options(aide)
                usage = re.search(r"\[OPTIONS\] (.*)$", aide, flags=re.M)[1]
                self.assertIn(f"velmaris-calcul {verbe}", texte)
                arguments = re.search(rf'^\.BI {verbe} " (.*)"$', texte, flags=re.M)[1]
                self.assertEqual(arguments.replace(" ...", "..."), usage, f"{langue} {verbe}")
            self.assertEqual(options(texte), toutes, langue)

    def test_the_window_s_pages_tell_its_options(self):
        resultat = lance("velmaris", "--help")
        self.assertEqual(resultat.returncode, 0)
        for langue in ("", "fr"):
            self.assertEqual(options(page("velmaris", langue)), options(resultat.stdout), langue)
        self.assertIn(VERSION, lance("velmaris", "--version").stdout)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=2)
