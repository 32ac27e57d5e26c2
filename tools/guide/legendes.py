"""Captions of controls: what stands in bold on a page of the guide is one of them, as it is on the screen."""

import re
import unicodedata
from xml.etree import ElementTree

LANGAGE = {"fr": "FR.txt", "en": "EN.txt"}
LIGNE = re.compile(r'\{(?:SEUL|RANG)\((\w+)(?:, (\d+))?\), Genre::\w+, "[^"]*", \{[^}]*\}, "((?:[^"\\]|\\.)*)"')


def normalise(texte):
    """A caption as the guide writes it: single blanks, no mnemonic, no colon or point at its end."""
    texte = re.sub(r"\s+", " ", texte.replace("&", "")).strip()
    return texte.rstrip(" :.")


def _sans_accents(texte):
    return "".join(c for c in unicodedata.normalize("NFD", texte) if not unicodedata.combining(c))


def _du_fichier(chemin):
    """Captions and messages of a language file, by window, control and index."""
    fenetre = ""
    for ligne in chemin.read_text("utf-8").splitlines():
        if ligne.startswith("Form="):
            fenetre = _sans_accents(ligne.removeprefix("Form="))
            continue
        champs = ligne.split("\\") + [""] * 5
        rang = champs[2] if champs[0] == "MSG" else champs[4]
        yield (fenetre, champs[0], rang), champs[1]


def _du_programme(dossier):
    """Captions that the program is built with, which a language file may replace."""
    for source in sorted(dossier.rglob("Table*.cpp")):
        texte = source.read_text("utf-8")
        fenetre = re.search(r"using Fenetre = (\w+);", texte)
        for nom, rang, legende in LIGNE.findall(texte):
            yield (fenetre[1] if fenetre else "", nom, rang), legende


def legendes(racine, langue):
    """All captions that can be on the screen in a language."""
    toutes = dict(_du_programme(racine / "shell" / "fenetres"))
    remplacees = dict(_du_fichier(racine / "data" / LANGAGE[langue]))
    toutes = {cle: mots for cle, mots in toutes.items() if (*cle[:2], "") not in remplacees}
    toutes.update(remplacees)
    return {normalise(mots) for mots in toutes.values()} - {""}


def en_gras(page):
    """What stands in bold on a page."""
    arbre = ElementTree.fromstring(f"<page>{page.corps}</page>")
    return [normalise("".join(noeud.itertext())) for noeud in arbre.iter("strong")]
