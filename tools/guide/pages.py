"""The pages of one language: read, turned into HTML, written."""

import html
import re
import shutil
from dataclasses import dataclass, field
from pathlib import Path

import markdown

OUTIL = Path(__file__).resolve().parent
ACCUEIL = "index"


@dataclass(frozen=True)
class Langue:
    """What the template says in a language, and how a help file names that language."""

    titre: str
    sommaire: str
    fichier: str  # the help file
    lcid: str


LANGUES = {
    "fr": Langue("Velmaris : le guide", "Sommaire", "velmaris.chm", "0x040c French (France)"),
    "en": Langue("Velmaris: the guide", "Contents", "velmaris-EN.chm", "0x0409 English (United States)"),
}


class Faute(Exception):
    """Something in the pages that stops the build."""


@dataclass
class Titre:
    """A heading: its level, its anchor and its words."""

    niveau: int
    ancre: str
    texte: str


@dataclass
class Page:
    """One page, its words in HTML without the frame."""

    nom: str
    langue: str
    corps: str
    titres: list = field(default_factory=list)

    @property
    def titre(self):
        """The words of its first heading."""
        return self.titres[0].texte

    @property
    def fichier(self):
        """Its name in a help folder."""
        return self.nom + ".html"


def noms_des_pages(source):
    """The names of the pages, in their order."""
    lignes = (source / "pages.txt").read_text("utf-8").splitlines()
    return [ligne.strip() for ligne in lignes if ligne.strip() and not ligne.startswith("#")]


def _aplatit(jetons):
    """Headings of the table of contents, children after their parent."""
    for jeton in jetons:
        yield Titre(jeton["level"], jeton["id"], html.unescape(jeton["name"]))
        yield from _aplatit(jeton["children"])


def lit_page(fichier, langue):
    """A page from its Markdown; links to other pages become links to their HTML."""
    traducteur = markdown.Markdown(extensions=["toc", "tables", "attr_list"], output_format="xhtml")
    corps = traducteur.convert(fichier.read_text("utf-8"))
    corps = re.sub(r'(<a [^>]*?href="[^":]*?)\.md(#[^"]*)?"', lambda m: f'{m[1]}.html{m[2] or ""}"', corps)
    titres = list(_aplatit(traducteur.toc_tokens))
    if not titres or titres[0].niveau != 1:
        raise Faute(f"{langue}/{fichier.name}: the page has to begin with a heading of the first level")
    return Page(fichier.stem, langue, corps, titres)


def lit_guide(source, langue):
    """All pages of a language, in the order of pages.txt."""
    noms = noms_des_pages(source)
    presents = {f.stem for f in (source / langue).glob("*.md")}
    for nom in noms:
        if nom not in presents:
            raise Faute(f"{langue}/{nom}.md is missing: every page is there in each language")
    for nom in sorted(presents - set(noms)):
        raise Faute(f"{langue}/{nom}.md isn't in pages.txt")
    return [lit_page(source / langue / (nom + ".md"), langue) for nom in noms]


def _lien(page, avant="", apres=""):
    return f'<a href="{page.fichier}">{avant}{html.escape(page.titre)}{apres}</a>'


def habille(page, pages):
    """A page in its frame: what comes before, the contents, what comes after."""
    langue = LANGUES[page.langue]
    rang = pages.index(page)
    avant = _lien(pages[rang - 1], "← ") if rang > 0 else ""
    apres = _lien(pages[rang + 1], "", " →") if rang + 1 < len(pages) else ""
    modele = (OUTIL / "modele.html").read_text("utf-8")
    remplace = {
        "langue": page.langue,
        "titre": html.escape(page.titre),
        "guide": html.escape(langue.titre),
        "sommaire": f'<a href="{ACCUEIL}.html">{langue.sommaire}</a>' if page.nom != ACCUEIL else "",
        "avant": avant,
        "apres": apres,
        "corps": page.corps,
    }
    return re.sub(r"\{\{(\w+)\}\}", lambda m: remplace[m[1]], modele)


def ecrit_guide(pages, source, sortie, codage):
    """Writes the pages of a language with their pictures and style; what the folder held before goes."""
    shutil.rmtree(sortie, ignore_errors=True)
    sortie.mkdir(parents=True)
    for page in pages:
        (sortie / page.fichier).write_bytes(habille(page, pages).encode(codage, "xmlcharrefreplace"))
    shutil.copyfile(OUTIL / "guide.css", sortie / "guide.css")
    (sortie / "images").mkdir()
    for image in sorted((source / "images").glob("*.png")):
        shutil.copyfile(image, sortie / "images" / image.name)
