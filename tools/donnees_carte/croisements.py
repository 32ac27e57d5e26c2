"""Where drawn sides cross: a grid of cells finds the pairs worth a look, signs of areas decide."""

import numpy as np

CASE = 0.2


def _cases(a, b):
    """For every cell that the box of a side covers, the cell's key and the side's number."""
    bas = np.floor(np.minimum(a, b) / CASE).astype(int)
    haut = np.floor(np.maximum(a, b) / CASE).astype(int)
    largeur, hauteur = (haut - bas + 1).T
    nombre = largeur * hauteur
    cote = np.repeat(np.arange(len(a)), nombre)
    rang = np.arange(nombre.sum()) - np.repeat(np.cumsum(nombre) - nombre, nombre)
    colonnes = round(360 / CASE)
    x = (bas[cote, 0] + rang % largeur[cote]) % colonnes
    y = bas[cote, 1] + rang // largeur[cote]
    return y * colonnes + x, cote


def _paires(cles, cote):
    """Pairs of sides that share a cell, each once, the smaller number first."""
    ordre = np.argsort(cles, kind="stable")
    cles, cote = cles[ordre], cote[ordre]
    paires = []
    decalage = 1
    while decalage < len(cles):
        memes = cles[decalage:] == cles[:-decalage]
        if not memes.any():
            break
        paires.append(np.column_stack((cote[:-decalage][memes], cote[decalage:][memes])))
        decalage += 1
    if not paires:
        return np.empty((0, 2), int)
    return np.unique(np.sort(np.concatenate(paires), axis=1), axis=0)


def _signe(p, q, r):
    """On which side of p to q the point r lies."""
    return np.sign((q[:, 0] - p[:, 0]) * (r[:, 1] - p[:, 1]) - (q[:, 1] - p[:, 1]) * (r[:, 0] - p[:, 0]))


def cherche(a, b):
    """Pairs of numbers of the sides a[n] to b[n] that cross inside both; longitudes may differ by whole turns."""
    paires = _paires(*_cases(a, b))
    un, deux = paires.T
    tour = np.zeros((len(paires), 2))
    tour[:, 0] = 360 * np.round((a[un, 0] + b[un, 0] - a[deux, 0] - b[deux, 0]) / 720)
    p, q, r, s = a[un], b[un], a[deux] + tour, b[deux] + tour
    return paires[(_signe(p, q, r) * _signe(p, q, s) < 0) & (_signe(r, s, p) * _signe(r, s, q) < 0)]
