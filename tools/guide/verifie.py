"""What a guide has to hold: links and anchors that lead somewhere, pictures that are there, languages that agree."""

import xml.etree.ElementTree as ElementTree

from pages import Faute, habille


def _arbre(page, pages):
    """The page as a tree, which only a well-formed page becomes."""
    try:
        return ElementTree.fromstring(habille(page, pages).split("\n", 1)[1])
    except ElementTree.ParseError as erreur:
        raise Faute(f"{page.langue}/{page.nom}.md: the page isn't well-formed: {erreur}") from erreur


def _ancres(arbre):
    return {noeud.get("id") for noeud in arbre.iter() if noeud.get("id")}


def _verifie_liens(page, arbre, ancres):
    """Every link within the guide leads to a page, and to an anchor of it."""
    for noeud in arbre.iter("a"):
        cible = noeud.get("href", "")
        if "://" in cible or cible.startswith("mailto:"):
            continue
        fichier, _, ancre = cible.partition("#")
        nom = fichier.removesuffix(".html") if fichier else page.nom
        if nom not in ancres:
            raise Faute(f"{page.langue}/{page.nom}.md: link to {cible!r}, which is no page of the guide")
        if ancre and ancre not in ancres[nom]:
            raise Faute(f"{page.langue}/{page.nom}.md: link to {cible!r}, an anchor that {nom}.md doesn't have")


def _verifie_images(source, page, arbre):
    """Every picture is there and says in words what it shows.

    @return the names of the pictures
    """
    noms = set()
    for noeud in arbre.iter("img"):
        nom = noeud.get("src", "")
        if not nom.startswith("images/") or not (source / page.langue / nom).is_file():
            raise Faute(f"{page.langue}/{page.nom}.md: the picture {nom!r} isn't there")
        if not noeud.get("alt", "").strip():
            raise Faute(f"{page.langue}/{page.nom}.md: the picture {nom!r} has no words")
        noms.add(nom.removeprefix("images/"))
    return noms


def _verifie_langue(source, langue, pages):
    """The pages of one language.

    @return for each page the levels of its headings and its pictures
    """
    arbres = {page.nom: _arbre(page, pages) for page in pages}
    ancres = {nom: _ancres(arbre) for nom, arbre in arbres.items()}
    formes, montrees = {}, set()
    for page in pages:
        _verifie_liens(page, arbres[page.nom], ancres)
        images = _verifie_images(source, page, arbres[page.nom])
        formes[page.nom] = ([t.niveau for t in page.titres], sorted(images))
        montrees |= images
    for image in sorted(f.name for f in (source / langue / "images").glob("*")):
        if image not in montrees:
            raise Faute(f"{langue}/images/{image}: no page shows this picture")
    return formes


def verifie(source, guides):
    """Raises `Faute` for the first thing that is wrong."""
    formes = {langue: _verifie_langue(source, langue, pages) for langue, pages in guides.items()}
    premiere, *autres = formes
    for autre in autres:
        for nom, (titres, images) in formes[premiere].items():
            titres_autres, images_autres = formes[autre][nom]
            if titres != titres_autres:
                raise Faute(f"{nom}.md: {premiere} and {autre} haven't the same sections")
            if images != images_autres:
                raise Faute(f"{nom}.md: {premiere} and {autre} haven't the same pictures")
