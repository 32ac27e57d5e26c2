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
ECART = 35.0  # miles off times the square root of km2: what keeps a smaller island with its shape
ILOT = 0.02  # km2: nothing smaller is kept unless named
LAC = 15  # km2
ILOT_DE_LAC = 15  # km2
TOTALE_ILE = 150  # km2
TOTALE_ECART = 400.0
TOTALE_LIGNES = 36_000
# What the coarse file keeps for the seafarer, however small: latitude, longitude.
TOTALE_CAPS = [(-55.97, -67.28), (35.24, -75.55)]  # Cape Horn, Hatteras
SEULE = 5.0  # miles from anything drawn past which every island and rock of the full resolution is drawn
TRAIT = 1.5  # miles across under which such an island is a stroke along its length, 500 metres at least
COTE_DE_RIVIERE = 30  # miles
EMBOUCHURE = 12.0  # miles from the coast within which a river that ends short of it is led there
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
        proches = self._autour(point)
        return min(60.0, float(distance(proches, point).min())) if len(proches) else 60.0

    def point_proche(self, point):
        """The nearest point, of which there must be one near."""
        proches = self._autour(point)
        return proches[int(np.argmin(distance(proches, point)))].copy()

    def _autour(self, point):
        """The points of the cells about a place."""
        lon, lat = int(np.floor(point[0])), int(np.floor(point[1]))
        large = min(180, int(1 / max(0.01, np.cos(np.radians(min(89.0, abs(point[1]) + 1))))) + 1)
        proches = [
            bloc
            for y in range(lat - 1, lat + 2)
            for x in range(lon - large, lon + large + 1)
            for bloc in self.cases.get((x % 360, y), ())
        ]
        return np.concatenate(proches) if proches else np.empty((0, 2))


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


def perdues(petites, dessinees):
    """The islands of the full resolution that stand alone: more than so many miles from every point of what is drawn, the
    largest first, each counting as drawn for the next. A small one is a stroke along its length: the file has no room
    for more, and its error is under that of the coasts."""
    voisinage, cases = Voisinage(), set()

    def pose(ligne):
        voisinage.ajoute(ligne)
        cases.update(map(tuple, np.floor(np.unique(np.round(ligne * 25), axis=0)).astype(int) % (360 * 25, 10**6)))

    for ligne in dessinees:
        pose(ligne)
    ajoutees = []
    for terre in terres(petites):
        case = np.floor(np.round(terre.centre * 25)).astype(int) % (360 * 25, 10**6)
        tour = (terre.centre, *terre.ligne[:: max(1, len(terre.ligne) // 12)])
        if tuple(case) in cases or any(voisinage.plus_proche(p) <= SEULE for p in tour):
            continue
        court = trait(terre)
        ligne = terre.ligne if court is None else court
        ajoutees.append(Terre(ligne))
        pose(ligne)
    return ajoutees


def trait(terre, metres=250):
    """The stroke for a small island: from end to end, or so many metres each way of its middle; none for a larger one."""
    ligne = terre.ligne
    loin = ligne[int(np.argmax(distance(ligne, ligne[0])))]
    bout = ligne[int(np.argmax(distance(ligne, loin)))]
    longueur = float(distance(loin, bout))
    if longueur >= TRAIT:
        return None
    sens = (loin - bout) / 2 * max(1.0, 2 * metres / 1852 / max(longueur, 1e-6)) if longueur > 0.01 else None
    if sens is None:
        sens = np.array((metres / 1852 / 60 / np.cos(np.radians(terre.centre[1])), 0.0))
    return np.array([terre.centre - sens, terre.centre + sens])


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


def fait_cotes(cotes, petites, dit):
    """Contours.Asc, Iles.Asc and Totale.asc."""
    toutes = terres(cotes)
    grandes = [t.ligne for t in toutes if t.aire >= GRANDE_TERRE]
    iles, dessinees = nommees(toutes, isolees(toutes, ILE, ECART, ILOT))
    iles = [t.ligne for t in iles if t.aire < GRANDE_TERRE]
    seules = perdues(petites, grandes + iles)
    rochers = sum(1 for t in seules if len(t.ligne) == 2)
    dit(f"{len(seules)} islands of the full resolution stand alone, {rochers} of them drawn as a stroke")
    iles += [t.ligne for t in seules]
    dit(f"{len(grandes)} great lands, {len(iles)} islands; drawn as a diamond: {', '.join(dessinees) or 'none'}")
    contours, archipels = faisceau(grandes, parts_fines), faisceau(iles, parts_fines)
    restes = ajuste([contours, archipels], [LIGNES_MAX, LIGNES_MAX], compte, [0.8564, 0.985], dit)
    choisies = isolees(toutes, TOTALE_ILE, TOTALE_ECART, 1)
    totale = faisceau([t.ligne for t in avec_caps(toutes, choisies)])
    restes_totale = ajuste([totale], [TOTALE_LIGNES], compte, 2.5, dit)
    return [
        resultat("Contours.Asc", "lands", contours, restes),
        resultat("Iles.Asc", "islands", archipels, restes),
        resultat("Totale.asc", "lands", totale, restes_totale),
    ]


def avec_caps(toutes, choisies):
    """The lands of the coarse file with those that bear a cape of its list: each the nearest to it."""
    gardees = list(choisies)
    for lat, lon in TOTALE_CAPS:
        porteuse = min((t for t in toutes if t.aire < GRANDE_TERRE and distance(t.centre, (lon, lat)) < 60),
                       key=lambda t: float(distance(t.ligne, (lon, lat)).min()))
        if not any(porteuse is t for t in gardees):
            gardees.append(porteuse)
    return gardees


def fait_lacs(lacs, iles_des_lacs, dit):
    """Lacs.Asc: lakes, and the islands in lakes."""
    anneaux = [t.ligne for t in terres(lacs) if t.aire >= LAC]
    anneaux += [t.ligne for t in terres(iles_des_lacs) if t.aire >= ILOT_DE_LAC]
    eaux = faisceau(anneaux)
    restes = ajuste([eaux], [LIGNES_MAX], compte, 0.69, dit)
    return resultat("Lacs.Asc", "lakes and islands in them", eaux, restes)


def jusqu_a_la_cote(lignes, cotes, lacs):
    """The rivers, those led on to the coast that end short of it: of every system of rivers that meet end to end and of
    which no point lies at the coast, the free end nearest to it, when it is near and lies at no lake."""
    mer, eaux = Voisinage(), Voisinage()
    for ligne in cotes:
        mer.ajoute(ligne)
    for ligne in lacs:
        eaux.ajoute(ligne)
    lignes = list(lignes)
    for systeme in systemes(lignes):
        bouts = [(n, rang) for n in systeme for rang in (0, -1)]
        points = np.concatenate([lignes[n] for n in systeme])
        if min(mer.plus_proche(p) for p in (lignes[n][rang] for n, rang in bouts)) > EMBOUCHURE:
            continue
        if any(mer.plus_proche(p) < 1 for p in points[::3]):
            continue
        n, rang = min(bouts, key=lambda b: mer.plus_proche(lignes[b[0]][b[1]]))
        bout = lignes[n][rang]
        if eaux.plus_proche(bout) < 1:
            continue
        cote = mer.point_proche(bout)
        cote[0] += 360 * np.round((bout[0] - cote[0]) / 360)
        lignes[n] = np.concatenate(([cote], lignes[n])) if rang == 0 else np.concatenate((lignes[n], [cote]))
    return lignes


def systemes(lignes):
    """Numbers of the lines that meet at their ends, a list for each system."""
    a_ce_bout = {}
    for n, ligne in enumerate(lignes):
        for rang in (0, -1):
            a_ce_bout.setdefault(tuple(np.round(ligne[rang] % (360, 1000), 3)), []).append(n)
    parent = list(range(len(lignes)))

    def tete(n):
        while parent[n] != n:
            n = parent[n]
        return n

    for autres in a_ce_bout.values():
        for n in autres[1:]:
            parent[tete(n)] = tete(autres[0])
    groupes = {}
    for n in range(len(lignes)):
        groupes.setdefault(tete(n), []).append(n)
    return list(groupes.values())


def fait_rivieres(classes, cotes, lacs, dit):
    """Rivieres.Asc, the great rivers first."""
    lignes = [m for classe in classes for m in coupe_longs(classe, COTE_DE_RIVIERE)]
    menees = jusqu_a_la_cote(lignes, cotes, lacs)
    dit(f"{sum(1 for a, b in zip(lignes, menees) if len(a) != len(b))} rivers are led on to the coast")
    cours = faisceau(menees)
    restes = ajuste([cours], [LIGNES_MAX], compte, 0.525, dit)
    return resultat("Rivieres.Asc", "rivers", cours, restes)
