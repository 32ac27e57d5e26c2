"""The floors of the house: what a folder's files may include."""
import re
import unittest
from pathlib import Path

RACINE = Path(__file__).resolve().parents[2]

# From the ground up; rooms of one line are neighbours that don't know each other.
ETAGES = (
    ("foundations",),
    ("ephemerides",),
    ("sights",),
    ("lines", "sky"),
    ("chart",),
    ("complements/ciel",),
    ("complements/controle",),
    ("complements/point",),
    ("complements/prevision", "complements/registre", "complements/serie", "complements/lunaire", "complements/exercice"),
    ("complements/almanach",),
    ("complements/papier",),
    ("shell/fenetres",),
    ("shell/fenetres/complements", "shell/fenetres/donnees"),
    ("shell/bureau/complements",),
    ("shell/bureau",),
    ("shell/complements",),
    ("shell/visee",),
    ("shell/ecran", "shell/ciel"),
    ("shell/droites",),
    ("shell/carte", "shell/exercice", "shell/preparation", "shell/registre"),
    ("shell/point",),
    ("shell/papier", "shell/serie"),
    ("shell",),
    ("calcul/outils",),
    ("calcul/dit",),
    ("calcul", "shell/qt/peinture"),
    ("shell/qt/widgets",),
    ("shell/qt/systeme",),
    ("shell/qt/cadre",),
    ("shell/qt",),
)
HAUTEUR = {salle: etage for etage, salles in enumerate(ETAGES) for salle in salles}
PASSAGE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]', re.MULTILINE)


def sources():
    """Each source of the house with its room, and what it includes: a mark, < or ", and a path."""
    for salle in HAUTEUR:
        for source in sorted((RACINE / salle).glob("*.[ch]pp")):
            yield salle, source, PASSAGE.findall(source.read_text(encoding="utf-8"))


class Etages(unittest.TestCase):
    def test_every_folder_with_sources_is_a_known_room(self):
        maison = {salle.split("/")[0] for salle in HAUTEUR}
        salles = {str(f.parent.relative_to(RACINE)) for dossier in maison for f in (RACINE / dossier).rglob("*.[ch]pp")}
        self.assertEqual(salles, set(HAUTEUR))

    def test_a_room_includes_itself_and_lower_floors_alone(self):
        for salle, source, inclus in sources():
            for marque, chemin in inclus:
                if marque == '"':
                    autre = str(Path(chemin).parent)
                    with self.subTest(source=str(source.relative_to(RACINE)), inclus=chemin):
                        self.assertIn(autre, HAUTEUR)
                        self.assertTrue(autre == salle or HAUTEUR[autre] < HAUTEUR[salle])

    def test_the_renderer_alone_knows_the_toolkit(self):
        for salle, source, inclus in sources():
            if not salle.startswith("shell/qt"):
                with self.subTest(source=str(source.relative_to(RACINE))):
                    self.assertEqual([chemin for _, chemin in inclus if re.match(r"Q[A-Z]|Qt", chemin)], [])

    def test_the_sky_of_today_stands_on_nothing_that_is_told(self):
        for salle, source, inclus in sources():
            if salle == "complements/ciel":
                with self.subTest(source=str(source.relative_to(RACINE))):
                    self.assertEqual([c for m, c in inclus if m == '"' and not c.startswith(salle + "/")], [])

    def test_the_companion_knows_no_window(self):
        for salle, source, inclus in sources():
            if salle.startswith("calcul"):
                with self.subTest(source=str(source.relative_to(RACINE))):
                    self.assertEqual([c for _, c in inclus if c.startswith("shell/") and not c.startswith("shell/bureau/")], [])

    def test_no_two_types_of_the_program_bear_one_name(self):
        # Within one namespace the linker would keep the functions of one of them for both.
        definies = {}
        for salle, source, _ in sources():
            if source.suffix != ".hpp":
                continue
            texte = source.read_text()
            espace = "qt" if "namespace velmaris::qt" in texte else ""
            for nom in re.findall(r"^(?:struct|class|enum class) (\w+)(?: final)?(?: : [^;{]*)? \{", texte, re.M):
                with self.subTest(source=str(source.relative_to(RACINE)), nom=nom):
                    self.assertEqual(definies.setdefault((espace, nom), source), source)


if __name__ == "__main__":
    unittest.main()
