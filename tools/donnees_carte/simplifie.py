"""Fewer points for the same lines: the longest sides that pass no point by more than a tolerance, a tolerance that
fills a budget of lines, and no crossings that the source hasn't."""

import math

import numpy as np

from croisements import cherche
from geometrie import ecarts, vecteurs
from raccords import est_anneau

ESSAIS = 14
PENTE = 0.8  # how fast the points grow fewer as the tolerance grows, to guess the next tolerance


class Trait:
    """Points of a line, and for each the part of the tolerance that it is granted: 1, or less where more is wanted."""

    def __init__(self, points, parts=None):
        self.points = np.asarray(points, float)
        self.xyz = vecteurs(self.points)
        self.parts = np.ones(len(self.points)) if parts is None else parts

    def bout(self, debut, fin):
        """The rows from one to before another."""
        bout = Trait.__new__(Trait)
        bout.points, bout.xyz, bout.parts = self.points[debut:fin], self.xyz[debut:fin], self.parts[debut:fin]
        return bout

    def exces(self, i, j):
        """Distances in miles of the points between two rows from the side that joins these, by the parts granted."""
        return ecarts(self.points, self.xyz, i, j) / self.parts[i + 1:j]


class Faisceau:
    """Lines that share a budget, laid one after the other in one array.

    trait: all rows; debuts: first row of each line, and the end; gardes: whether a row is kept now."""

    def __init__(self, lignes, parts=None):
        self.points = np.concatenate(lignes)
        self.trait = Trait(self.points, None if parts is None else parts(self.points))
        self.debuts = np.concatenate(([0], np.cumsum([len(ligne) for ligne in lignes])))
        self.numeros = np.repeat(np.arange(len(lignes)), np.diff(self.debuts))
        self.gardes = np.ones(len(self.points), bool)
        self.tolerance = 0.0

    def garde(self, tolerance):
        """Keeps the points that a tolerance asks for."""
        self.tolerance = tolerance
        self.gardes[:] = False
        for debut, fin in zip(self.debuts[:-1], self.debuts[1:]):
            self.gardes[debut + simplifie(self.trait.bout(debut, fin), tolerance)] = True

    def cotes(self):
        """Rows (first, last) of the sides that are drawn."""
        rangs = np.flatnonzero(self.gardes)
        memes = self.numeros[rangs[1:]] == self.numeros[rangs[:-1]]
        return np.column_stack((rangs[:-1][memes], rangs[1:][memes]))

    def remet(self, cote):
        """Puts back the point that lies farthest from a side, and those that the two new sides then pass too far;
        False when there is none."""
        i, j = cote
        remis = _plus_loin(self.trait, i, j)
        self.gardes[remis] = True
        for bouts in zip([i, *remis], [*remis, j]) if remis else ():
            self.gardes[manquants(self.trait, *bouts, self.tolerance)] = True
        return bool(remis)

    def ecart(self, cote):
        """Greatest distance in miles from a dropped point to the side that passes it."""
        i, j = cote
        return float(ecarts(self.points, self.trait.xyz, i, j).max()) if j - i > 1 else 0.0

    def lignes(self):
        """The simplified lines."""
        return [self.points[d:f][self.gardes[d:f]] for d, f in zip(self.debuts[:-1], self.debuts[1:])]

    def erreur(self, part=1.0):
        """Greatest distance in miles from any dropped point to the side that passes it, measured; only on sides all of
        whose points are granted so much of the tolerance or less."""
        choisis = (cote for cote in self.cotes() if self.trait.parts[cote[0]:cote[1] + 1].max() <= part)
        return max((self.ecart(cote) for cote in choisis), default=0.0)


def simplifie(trait, tolerance):
    """Rows to keep of an unwrapped line: from each the longest side that passes no point by more than the tolerance.

    The ends are kept; a ring keeps three corners at least."""
    lon, lat = trait.points[:, 0].tolist(), trait.points[:, 1].tolist()
    disques = (trait.parts * tolerance).tolist()
    rangs, dernier = [0], len(lon) - 1
    while rangs[-1] < dernier:
        i = rangs[-1]
        for j in reversed(_portee(lon, lat, disques, i)):
            if j - i < 2 or trait.exces(i, j).max() <= tolerance:
                rangs.append(j)
                break
    if len(rangs) < 4 and est_anneau(trait.points):
        rangs = _triangle(trait)
        rangs += [rang for i, j in zip(rangs, rangs[1:]) for rang in manquants(trait, i, j, tolerance)]
    return np.array(sorted(rangs))


def manquants(trait, i, j, tolerance):
    """Rows to put between two others so that no side passes a point by more than the tolerance."""
    rangs, a_voir = [], [(i, j)]
    while a_voir:
        i, j = a_voir.pop()
        if j - i > 1 and trait.exces(i, j).max() > tolerance:
            rang = _plus_loin(trait, i, j)[0]
            rangs.append(rang)
            a_voir += [(i, rang), (rang, j)]
    return rangs


def _plus_loin(trait, i, j):
    """The row that lies farthest from a side, in a list; none when the side passes no point."""
    return [i + 1 + int(np.argmax(trait.exces(i, j)))] if j - i > 1 else []


def _portee(lon, lat, disques, i):
    """Rows that a side from row i may reach: those seen from it inside the wedge that all points between leave open,
    each of them narrowing it to the disc about it that the side must touch."""
    echelle = 60 * math.cos(math.radians(lat[i]))
    candidats, axe, bas, haut, loin = [i + 1], None, -math.pi, math.pi, 0.0
    for j in range(i + 1, len(lon)):
        x, y = (lon[j] - lon[i]) * echelle, (lat[j] - lat[i]) * 60
        d, disque = math.hypot(x, y), disques[j]
        loin = max(loin, d - disque)
        angle = math.atan2(y, x)
        if axe is None:
            axe = angle
        angle = (angle - axe + math.pi) % (2 * math.pi) - math.pi
        if bas <= angle <= haut and d >= loin and j > i + 1:
            candidats.append(j)
        if d > disque:
            ouverture = math.asin(disque / d)
            bas, haut = max(bas, angle - ouverture), min(haut, angle + ouverture)
            if bas > haut:
                break
    return candidats


def _triangle(trait):
    """Rows of the three corners of a ring that a tolerance would flatten, and its end."""
    dernier = len(trait.points) - 1
    loin = int(np.argmax(np.sum((trait.xyz - trait.xyz[0]) ** 2, axis=1)))
    loin = min(max(loin, 1), dernier - 1)
    tiers = _plus_loin(trait, 0, loin) + _plus_loin(trait, loin, dernier)
    exces = [trait.exces(*((0, loin) if rang < loin else (loin, dernier))).max() for rang in tiers]
    return sorted((0, loin, dernier, tiers[int(np.argmax(exces))]))


def decroise(faisceaux):
    """Puts points back until no two drawn sides cross; returns how many crossings the source itself has."""
    while True:
        cotes = [f.cotes() for f in faisceaux]
        tous = np.concatenate([np.column_stack((np.full(len(c), n), c)) for n, c in enumerate(cotes)])
        a = np.concatenate([f.points[c[:, 0]] for f, c in zip(faisceaux, cotes)])
        b = np.concatenate([f.points[c[:, 1]] for f, c in zip(faisceaux, cotes)])
        paires = cherche(a, b)
        remis = [faisceaux[n].remet((i, j)) for n, i, j in tous[np.unique(paires)]]
        if not any(remis):
            return len(paires)


def ajuste(faisceaux, budgets, compte, depart=1.0, dit=None):
    """Leaves each bundle at the smallest tolerance found that keeps within its budget of lines, crossings mended.

    compte: tells how many lines of a file the simplified lines make. Returns the crossings that are left."""
    bornes = [[0.0, math.inf] for _ in faisceaux]
    tolerances = list(depart) if isinstance(depart, list) else [depart] * len(faisceaux)
    for essai in range(2 * ESSAIS):
        for faisceau, tolerance in zip(faisceaux, tolerances):
            if faisceau.tolerance != tolerance or len(faisceaux) > 1:
                faisceau.garde(tolerance)
        restes = decroise(faisceaux)
        comptes = [compte(faisceau.lignes()) for faisceau in faisceaux]
        if dit:
            dit(f"  tolerances {' '.join(f'{t:.4f}' for t in tolerances)}: {comptes} lines")
        tiennent = all(n <= budget for n, budget in zip(comptes, budgets))
        if tiennent and (essai >= ESSAIS or all(n > 0.998 * budget for n, budget in zip(comptes, budgets))):
            return restes
        for rang, (n, budget) in enumerate(zip(comptes, budgets)):
            if 0.998 * budget < n <= budget:
                continue
            bornes[rang][n <= budget] = tolerances[rang]
            tolerances[rang] = _entre(bornes[rang], tolerances[rang] * (n / (0.9990 * budget)) ** (1 / PENTE))
    raise RuntimeError("no tolerance fits the budget")


def _entre(bornes, essai):
    """The next tolerance to try: the guess where it lies inside what is known, else the middle."""
    bas, haut = bornes
    if bas < essai < haut:
        return essai
    if math.isinf(haut):
        return max(essai, bas * 1.02)
    return (bas + haut) / 2 if haut > bas * 1.0005 else haut * 1.002
