"""Which lands, islands, lakes and rivers go into which file, and how far they are simplified."""

from pathlib import Path

import numpy as np

from fichiers import LIGNES_MAX, arrondi, compte
from geometrie import aire, distance, fait_le_tour
from raccords import coupe_longs, est_anneau
from simplifie import Faisceau, ajuste

LISTES = Path(__file__).parent

GRANDE_TERRE = 200_000  # km2
ILE = 50  # km2: kept wherever it lies
ECART = 13.5  # miles off times the square root of km2: what keeps a smaller island
ILOT = 0.02  # km2: nothing smaller is kept unless named
LAC = 15  # km2
ILE_DE_LAC = 50  # km2: larger ones go with the islands, smaller ones with the lakes
ILOT_DE_LAC = 15  # km2
TOTALE_ILE = 150  # km2
TOTALE_ECART = 400.0
TOTALE_LIGNES = 30_000
COTE_DE_RIVIERE = 30  # miles
# Waters whose coast is wanted finer: west, east, south, north, and the part of the tolerance granted there.
EAUX_FINES = [
    (-6.6, 2.6, 46.0, 51.3, 0.25),  # Brittany, the Channel and Scilly
    (3.0, 10.0, 41.2, 44.5, 0.4),  # Provence and Corsica
    (-63.5, -60.5, 11.9, 18.6, 0.4),  # the Lesser Antilles
]


class Terre:
    """A ring with its area and a point well inside its box."""

    def __init__(self, ligne):
        self.ligne = ligne
        self.aire = np.inf if fait_le_tour(ligne) else aire(ligne)
        self.centre = (ligne.min(axis=0) + ligne.max(axis=0)) / 2


def terres(lignes):
    """Rings of 4 points and more, the largest first."""
    return sorted((Terre(ligne) for ligne in lignes if len(ligne) > 3), key=lambda t: -t.aire)


class Voisinage:
    """Points by cells of a degree, to find how far the nearest is."""

    def __init__(self):
        self.cases = {}

    def ajoute(self, points):
        """Adds rows of points."""
        cles = np.floor(points).astype(int)
        cles[:, 0] %= 360
        ordre = np.lexsort(cles.T)
        bornes = np.flatnonzero(np.any(np.diff(cles[ordre], axis=0) != 0, axis=1)) + 1
        for rangs in np.split(ordre, bornes):
            self.cases.setdefault(tuple(cles[rangs[0]]), []).append(points[rangs])

    def plus_proche(self, point):
        """Miles to the nearest point; 60 when none is as near."""
        lon, lat = int(np.floor(point[0])), int(np.floor(point[1]))
        large = min(180, int(1 / max(0.01, np.cos(np.radians(min(89.0, abs(point[1]) + 1))))) + 1)
        proches = [
            bloc
            for y in range(lat - 1, lat + 2)
            for x in range(lon - large, lon + large + 1)
            for bloc in self.cases.get((x % 360, y), ())
        ]
        return min(60.0, float(distance(np.concatenate(proches), point).min())) if proches else 60.0


def isolees(toutes, surface, ecart, plus_petite):
    """Lands of an area and more, and the smaller ones that lie off: the smaller, the farther."""
    voisinage, gardees = Voisinage(), []
    for terre in toutes:
        if terre.aire < plus_petite:
            break
        if terre.aire < surface:
            au_mieux = 60.0 * np.sqrt(terre.aire)
            if au_mieux < ecart or voisinage.plus_proche(terre.centre) * np.sqrt(terre.aire) < ecart:
                continue
        gardees.append(terre)
        voisinage.ajoute(terre.ligne[::4] if len(terre.ligne) > 400 else terre.ligne)
    return gardees


def lieux(fichier):
    """Rows of a list of places: (latitude, longitude, words, rest); "#" begins a comment."""
    rangees = []
    for ligne in (LISTES / fichier).read_text(encoding="utf-8").splitlines():
        if ligne.strip() and not ligne.startswith("#"):
            lat, lon, mot, nom = ligne.split(None, 3)
            rangees.append((float(lat), float(lon), mot, nom))
    return rangees


def nommees(toutes, gardees):
    """Adds the islands of the list: of the rings within reach of the place the largest and the nearest, or, when the
    source has none, a small diamond.

    Returns (lands, names of those drawn as a diamond)."""
    choisies, dessinees = list(gardees), []
    presentes = {id(terre) for terre in gardees}
    centres = np.array([terre.centre for terre in toutes])
    for lat, lon, rayon, nom in lieux("iles.txt"):
        portee = float(rayon)
        proches = np.flatnonzero(np.abs(centres[:, 1] - lat) < 2)
        a_portee = [n for n in proches if _touche(toutes[n], (lon, lat), portee)]
        if not a_portee:
            choisies.append(Terre(losange(lon, lat)))
            dessinees.append(nom)
            continue
        proche = min(a_portee, key=lambda n: distance(toutes[n].centre, (lon, lat)))
        for terre in (toutes[a_portee[0]], toutes[proche]):
            if id(terre) not in presentes:
                presentes.add(id(terre))
                choisies.append(terre)
    return choisies, dessinees


def _touche(terre, point, milles):
    """Whether an island has a point of its coast, or its centre, within so many miles of a place."""
    if terre.aire > GRANDE_TERRE or distance(terre.centre, point) > 60:
        return False
    return min(distance(terre.centre, point), float(distance(terre.ligne, point).min())) <= milles


def losange(lon, lat, metres=250):
    """A diamond of so many metres about a place."""
    y = metres / 1852 / 60
    x = y / np.cos(np.radians(lat))
    return np.array([(lon, lat + y), (lon + x, lat), (lon, lat - y), (lon - x, lat), (lon, lat + y)])


def parts_fines(points):
    """For each point the part of the tolerance that it is granted."""
    parts = np.ones(len(points))
    lon, lat = (points[:, 0] + 180) % 360 - 180, points[:, 1]
    for ouest, est, sud, nord, part in EAUX_FINES:
        parts[(lon > ouest) & (lon < est) & (lat > sud) & (lat < nord)] = part
    return parts


def faisceau(lignes, parts=None):
    """Lines as a bundle, on the points that the file can write; a ring that rounding flattens goes."""
    ronds = [arrondi(ligne) for ligne in lignes]
    return Faisceau([ligne for ligne in ronds if len(ligne) > (3 if est_anneau(ligne) else 1)], parts)


def resultat(nom, quoi, bout, restes=0):
    """What the table and the writer need of a file."""
    lignes = bout.lignes()
    return {"nom": nom, "quoi": f"{len(lignes)} {quoi}", "lignes": lignes, "tolerance": bout.tolerance,
            "erreur": bout.erreur(), "fine": bout.erreur(0.99), "croisements": restes}


def fait_cotes(cotes, iles_des_lacs, dit):
    """Contours.Asc, Iles.Asc and Totale.asc."""
    toutes = terres(cotes)
    grandes = [t.ligne for t in toutes if t.aire >= GRANDE_TERRE]
    iles, dessinees = nommees(toutes, isolees(toutes, ILE, ECART, ILOT))
    iles = [t.ligne for t in iles if t.aire < GRANDE_TERRE]
    iles += [t.ligne for t in terres(iles_des_lacs) if t.aire >= ILE_DE_LAC]
    dit(f"{len(grandes)} great lands, {len(iles)} islands; drawn as a diamond: {', '.join(dessinees) or 'none'}")
    contours, archipels = faisceau(grandes, parts_fines), faisceau(iles, parts_fines)
    restes = ajuste([contours, archipels], [LIGNES_MAX, LIGNES_MAX], compte, 0.85, dit)
    totale = faisceau([t.ligne for t in isolees(toutes, TOTALE_ILE, TOTALE_ECART, 1)])
    restes_totale = ajuste([totale], [TOTALE_LIGNES], compte, 2.5, dit)
    return [
        resultat("Contours.Asc", "lands", contours, restes),
        resultat("Iles.Asc", "islands", archipels, restes),
        resultat("Totale.asc", "lands", totale, restes_totale),
    ]


def fait_lacs(lacs, iles_des_lacs, dit):
    """Lacs.Asc: lakes, and the islands in lakes that aren't with the islands."""
    anneaux = [t.ligne for t in terres(lacs) if t.aire >= LAC]
    anneaux += [t.ligne for t in terres(iles_des_lacs) if ILOT_DE_LAC <= t.aire < ILE_DE_LAC]
    eaux = faisceau(anneaux)
    restes = ajuste([eaux], [LIGNES_MAX], compte, 0.6, dit)
    return resultat("Lacs.Asc", "lakes and islands in them", eaux, restes)


def fait_rivieres(classes, dit):
    """Rivieres.Asc, the great rivers first."""
    cours = faisceau([m for lignes in classes for m in coupe_longs(lignes, COTE_DE_RIVIERE)])
    restes = ajuste([cours], [LIGNES_MAX], compte, 0.45, dit)
    return resultat("Rivieres.Asc", "rivers", cours, restes)
