"""Lines on the sphere: lengths in nautical miles, areas, unwrapped longitudes, distances of points from a side."""

import numpy as np

MILLES_PAR_RADIAN = 60 * 180 / np.pi
RAYON_KM = 6371.0


def vecteurs(points):
    """Unit vectors of an array of (longitude, latitude) rows in degrees."""
    lon, lat = np.radians(points[..., 0]), np.radians(points[..., 1])
    return np.stack((np.cos(lat) * np.cos(lon), np.cos(lat) * np.sin(lon), np.sin(lat)), axis=-1)


def distance(a, b):
    """Great-circle distance in miles between points, or rows of points."""
    corde = np.linalg.norm(vecteurs(np.asarray(a, float)) - vecteurs(np.asarray(b, float)), axis=-1)
    return 2 * np.arcsin(np.minimum(1, corde / 2)) * MILLES_PAR_RADIAN


def deroule(points):
    """The same line with longitudes that never jump: each side goes the short way round."""
    points = np.array(points, float)
    sauts = np.diff(points[:, 0])
    sauts -= 360 * np.round(sauts / 360)
    points[1:, 0] = points[0, 0] + np.cumsum(sauts)
    return points


def aire(anneau):
    """Area in km2 of a ring that goes round no pole."""
    lon = np.radians(anneau[:, 0])
    sinus = np.sin(np.radians(anneau[:, 1]))
    return abs(np.sum(np.diff(lon) * (sinus[1:] + sinus[:-1])) / 2) * RAYON_KM**2


def fait_le_tour(ligne):
    """Whether an unwrapped ring goes round a pole."""
    return abs(ligne[-1, 0] - ligne[0, 0]) > 180


def _ecarts_arc(xyz, a, b):
    """Distances in miles of unit vectors from the great-circle side that joins two others."""
    normale = np.cross(a, b)
    norme = np.linalg.norm(normale)
    bouts = np.minimum(np.sum((xyz - a) ** 2, axis=1), np.sum((xyz - b) ** 2, axis=1))
    loin = np.sqrt(bouts)
    if norme < 1e-12:
        return loin * MILLES_PAR_RADIAN
    normale = normale / norme
    dedans = (xyz @ np.cross(normale, a) >= 0) & (xyz @ np.cross(b, normale) >= 0)
    return np.where(dedans, np.abs(xyz @ normale), loin) * MILLES_PAR_RADIAN


def _ecarts_droite(points, a, b):
    """Distances in miles of points from the side that is straight in longitude and latitude, as a flat chart draws it;
    right near the side, which is where they count."""
    echelle = np.cos(np.radians(points[:, 1]))
    cote_x, cote_y = (b[0] - a[0]) * echelle, b[1] - a[1]
    x, y = (points[:, 0] - a[0]) * echelle, points[:, 1] - a[1]
    carre = cote_x**2 + cote_y**2
    part = np.clip((x * cote_x + y * cote_y) / np.where(carre > 0, carre, 1), 0, 1)
    return np.hypot(x - part * cote_x, y - part * cote_y) * 60


def ecarts(points, xyz, i, j):
    """Distances in miles of the points between rows i and j of a line from the side that joins these two, the side
    taken as a great circle and as a straight line of the chart: the greater of both."""
    milieu = slice(i + 1, j)
    return np.maximum(_ecarts_arc(xyz[milieu], xyz[i], xyz[j]), _ecarts_droite(points[milieu], points[i], points[j]))
