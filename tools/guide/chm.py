"""The project that chmcmd makes a help file from: options, contents, index, and pages in plain ASCII."""

import html
import re
from xml.etree import ElementTree

from pages import ACCUEIL, LANGUES, ecrit_guide

# Readers of help files take names in the code page of the file's language.
CODAGE = "cp1252"
SITEMAP = ('<!DOCTYPE HTML PUBLIC "-//IETF//DTD HTML//EN">\r\n<html><head>'
           f'<meta http-equiv="Content-Type" content="text/html; charset={CODAGE.replace("cp", "windows-")}">'
           "</head><body>\r\n{}\r\n</body></html>\r\n")


def _objet(nom, cible):
    # An apostrophe stays: some readers end the name at its reference.
    nom = html.escape(nom, quote=False).replace('"', "&quot;")
    return (f'<li><object type="text/sitemap"><param name="Name" value="{nom}">'
            f'<param name="Local" value="{cible}"></object>')


def sommaire(pages):
    """The contents: pages, and the sections of each."""
    lignes = ["<ul>"]
    for page in pages:
        lignes.append(_objet(page.titre, page.fichier))
        sections = [t for t in page.titres if t.niveau == 2]
        if sections:
            lignes.append("<ul>")
            lignes += [_objet(t.texte, f"{page.fichier}#{t.ancre}") for t in sections]
            lignes.append("</ul>")
    return "\r\n".join(lignes + ["</ul>"])


def _entrees(page):
    """Headings of a page and captions of controls: whether it is a heading, its words, where it stands."""
    ancre = ""
    for noeud in ElementTree.fromstring(f"<page>{page.corps}</page>").iter():
        titre = bool(re.fullmatch(r"h[1-3]", noeud.tag))
        if titre:
            ancre = noeud.get("id", "")
        if titre or noeud.tag == "strong":
            mots = re.sub(r"\s+", " ", "".join(noeud.itertext())).strip()
            yield titre, mots, page.fichier + (f"#{ancre}" if ancre else "")


def mots_cles(pages):
    """The index, in the order of the alphabet: each word once, where it is a heading or else where it is first told."""
    entrees = {}
    for _, mots, cible in sorted((e for page in pages for e in _entrees(page)), key=lambda e: not e[0]):
        entrees.setdefault(mots.lower(), (mots, cible))
    return "\r\n".join(["<ul>"] + [_objet(*entrees[cle]) for cle in sorted(entrees)] + ["</ul>"])


def options(langue, pages, images):
    """The project file."""
    fichiers = [page.fichier for page in pages] + ["guide.css"] + [f"images/{nom}" for nom in images]
    return "\r\n".join([
        "[OPTIONS]",
        "Compatibility=1.1 or later",
        f"Compiled file={langue.fichier}",
        "Contents file=sommaire.hhc",
        "Index file=mots.hhk",
        f"Default topic={ACCUEIL}.html",
        "Full-text search=Yes",
        f"Language={langue.lcid}",
        f"Title={langue.titre}",
        "",
        "[FILES]",
        *fichiers,
        "",
    ])


def ecrit_projet(pages, source, sortie):
    """Writes a project and its pages; letters beyond ASCII are references, which every reader shows right."""
    langue = LANGUES[pages[0].langue]
    ecrit_guide(pages, source, sortie, "ascii")
    images = sorted(f.name for f in (sortie / "images").iterdir())

    def ecrit(nom, texte):
        (sortie / nom).write_bytes(texte.encode(CODAGE, "replace"))

    ecrit("sommaire.hhc", SITEMAP.format(sommaire(pages)))
    ecrit("mots.hhk", SITEMAP.format(mots_cles(pages)))
    ecrit(langue.fichier.replace(".chm", ".hhp"), options(langue, pages, images))
