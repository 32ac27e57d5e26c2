"""The chart's files: one point a line, x and y between 0 and 1, and a mark where the outline is cut."""

import numpy as np

COUPURE = "2 0"
LIGNES_MAX = 60000
BORD = 1e-7
DECIMALES = 7
COTE_MAX = 25  # miles: a side both of whose ends lie outside a small sheet and its margin isn't drawn
DIAGONALE = 180 * np.sqrt(2)


def arrondi(ligne):
    """A line in degrees moved to the points that the file can write."""
    x = np.round((180 + ligne[:, 0]) / 360, DECIMALES)
    y = np.round((ligne[:, 1] + 90) / DIAGONALE, DECIMALES)
    return sans_repetition(np.column_stack((x * 360 - 180, y * DIAGONALE - 90)))


def sans_repetition(ligne, proche=1e-9):
    """The line without the points that are closer than so many degrees to the one before."""
    pas = np.abs(np.diff(ligne, axis=0)).max(axis=1) > proche
    return ligne[np.concatenate(([True], pas))]


def coupe_antimeridien(ligne):
    """Pieces of an unwrapped line between 180 W and 180 E, both sides of each passage brought onto the meridian.

    A ring that passes it starts and ends there, so that nothing is drawn along the meridian."""
    ligne = _ecarte(ligne)
    tours = np.floor((ligne[:, 0] + 180) / 360)
    passages = np.flatnonzero(tours[1:] != tours[:-1])
    morceaux, debut, depart = [], [], 0
    for rang in passages:
        bout = _sur_le_meridien(ligne[rang], ligne[rang + 1])
        morceaux.append(np.array(debut + list(ligne[depart:rang + 1]) + [bout]))
        debut, depart = [bout], rang + 1
    morceaux.append(np.array(debut + list(ligne[depart:])))
    if len(passages) and _se_ferme(ligne):
        premier = morceaux.pop(0)
        tour = np.round((morceaux[-1][-1, 0] - premier[0, 0]) / 360) * 360
        morceaux[-1] = np.concatenate((morceaux[-1], premier[1:] + (tour, 0)))
    ramenes = [sans_repetition(_ramene(m), 1e-4) if len(passages) else _ramene(m) for m in morceaux]
    return [m for m in ramenes if len(m) > 1]


def _ecarte(ligne):
    """The line, its points on the antimeridian moved off it by a hair, so that a passage has two sides."""
    ecartee = ligne.copy()
    dessus = np.abs((ligne[:, 0] + 180) / 360 - np.round((ligne[:, 0] + 180) / 360)) < 1e-9
    ecartee[dessus, 0] += 1e-6 / 2
    return ecartee


def _se_ferme(ligne):
    """Whether a line ends where it starts, whole turns apart."""
    tour = (ligne[-1, 0] - ligne[0, 0]) / 360
    return abs(tour - round(tour)) < 1e-9 and abs(ligne[-1, 1] - ligne[0, 1]) < 1e-9


def _sur_le_meridien(a, b):
    """Where the side from a to b passes 180 degrees, whole turns kept."""
    meridien = (max(a[0], b[0]) + 180) // 360 * 360 - 180
    part = (meridien - a[0]) / (b[0] - a[0])
    return (meridien, a[1] + part * (b[1] - a[1]))


def _ramene(morceau):
    """A piece moved by whole turns to longitudes from -180 to 180, a hair inside."""
    milieu = (morceau[:, 0].min() + morceau[:, 0].max()) / 2
    ramene = morceau.copy()
    ramene[:, 0] -= 360 * np.floor((milieu + 180) / 360)
    ramene[:, 0] = np.clip(ramene[:, 0], 360 * BORD - 180, 180 - 360 * BORD)
    return ramene


def sans_long_cote(morceau):
    """The piece with points put on its sides over COTE_MAX, where the chart draws them: its picture is the same."""
    points = [morceau[:1]]
    for a, b in zip(morceau, morceau[1:]):
        # As the chart draws it, by the end where a degree of longitude is longest.
        milles = 60 * np.hypot((b[0] - a[0]) * np.cos(np.radians(min(abs(a[1]), abs(b[1])))), b[1] - a[1])
        nombre = np.ceil(max(milles, 1) / (COTE_MAX - 0.01))  # a hair under, since points are rounded as they are written
        parts = np.arange(1, nombre + 1) / nombre
        points.append(a + parts[:, None] * (b - a))
    return np.concatenate(points)


def morceaux_traces(lignes):
    """All lines as pieces that a flat chart can draw."""
    return [sans_long_cote(morceau) for ligne in lignes for morceau in coupe_antimeridien(ligne)]


def compte(lignes):
    """Lines that a file of these takes."""
    morceaux = morceaux_traces(lignes)
    return sum(map(len, morceaux)) + len(morceaux) - 1


def texte(lignes):
    """The whole file as text."""
    blocs = []
    for morceau in morceaux_traces(lignes):
        x = (180 + morceau[:, 0]) / 360
        y = np.clip((morceau[:, 1] + 90) / DIAGONALE, 0, np.sqrt(0.5))
        blocs.append("\n".join(f"{a:.{DECIMALES}f} {b:.{DECIMALES}f}" for a, b in zip(x, y)))
    return f"\n{COUPURE}\n".join(blocs) + "\n"
