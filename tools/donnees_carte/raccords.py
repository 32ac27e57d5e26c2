"""From the dump of `gmt coast -M`, which comes in pieces cut at the bins of the data, to whole lines."""

import numpy as np

from geometrie import deroule, distance


def lit_morceaux(lignes):
    """Pieces of a dump: lists of (longitude, latitude), one for each header that begins with ">"."""
    morceaux, courant = [], []
    for ligne in lignes:
        if ligne.startswith(">"):
            if courant:
                morceaux.append(courant)
            courant = []
        else:
            lon, lat = ligne.split()
            courant.append((float(lon), float(lat)))
    if courant:
        morceaux.append(courant)
    return morceaux


def cle(point):
    """What makes two ends one: the coordinates to 1e-5 degree, 180 W being 180 E."""
    lon = round(point[0], 5)
    return (180.0 if lon == -180.0 else lon, round(point[1], 5))


def joint(morceaux):
    """Whole lines: every piece whose end is the start of another is continued by it. Rings come out closed.

    Pieces of no length are dropped."""
    lignes, debuts = [], {}
    for numero, morceau in enumerate(morceaux):
        if cle(morceau[0]) != cle(morceau[-1]):
            debuts.setdefault(cle(morceau[0]), []).append(numero)
        elif len(morceau) > 2:
            lignes.append(list(morceau))
    fins = {cle(morceaux[n][-1]) for liste in debuts.values() for n in liste}
    libres = [n for depart, liste in debuts.items() if depart not in fins for n in liste]
    anneaux = [n for depart, liste in debuts.items() if depart in fins for n in liste]
    pris = set()
    for numero in libres + anneaux:
        if numero in pris:
            continue
        pris.add(numero)
        ligne = list(morceaux[numero])
        while cle(ligne[-1]) != cle(ligne[0]):
            suite = next((n for n in debuts.get(cle(ligne[-1]), []) if n not in pris), None)
            if suite is None:
                break
            pris.add(suite)
            ligne += morceaux[suite][1:]
        lignes.append(ligne)
    return [deroule(sans_doublons(ligne)) for ligne in lignes]


def sans_doublons(ligne):
    """The line without points that repeat the one before; a ring ends exactly where it starts."""
    propre = [ligne[0]]
    for point in ligne[1:]:
        if cle(point) != cle(propre[-1]):
            propre.append(point)
    if len(propre) > 1 and cle(propre[0]) == cle(propre[-1]):
        propre[-1] = propre[0]
    return np.array(propre)


def est_anneau(ligne):
    """Whether an unwrapped line ends where it starts, be it after a turn round a pole."""
    tour = (ligne[-1, 0] - ligne[0, 0]) / 360
    return len(ligne) > 1 and abs(tour - round(tour)) < 1e-9 and ligne[0, 1] == ligne[-1, 1]


def coupe_longs(lignes, milles):
    """Lines cut where a side is longer than so many miles; a lone point goes."""
    morceaux = []
    for ligne in lignes:
        longs = np.flatnonzero(distance(ligne[1:], ligne[:-1]) > milles) + 1
        morceaux += [m for m in np.split(ligne, longs) if len(m) > 1]
    return morceaux
