"""Makes the data of the world chart: python3 tools/donnees_carte [--travail DIR] [--sortie DIR].

Needs GMT with GSHHG's high and full resolutions, node and npm, libgeonames-common and numpy, which `make donnees-carte` installs.
"""

import argparse
import sys
import time
from pathlib import Path

try:
    import numpy  # noqa: F401
except ModuleNotFoundError:
    sys.exit("numpy is missing: run this with the python3 that has it (Debian: /usr/bin/python3, python3-numpy)")

from cotes import fait_cotes, fait_lacs, fait_rivieres
from fichiers import compte, texte
from sources import lit_couche, lit_petites, lit_villes, noms_francais
from villes import choisit, texte_villes

RACINE = Path(__file__).resolve().parents[2]
COLONNES = "| {:<13} | {:>6} | {:<38} | {:>8} | {:>9} | {:>8} | {:>9} |"


def dit(mots):
    """Tells how far the work has come."""
    print(f"{time.strftime('%H:%M:%S')} {mots}", file=sys.stderr, flush=True)


def lignes_du_monde(travail):
    """The five files of lines, each with what was measured."""
    dit("coasts")
    iles_des_lacs = lit_couche("iles des lacs", travail)
    cotes, lacs = lit_couche("cotes", travail), lit_couche("lacs", travail)
    resultats = fait_cotes(cotes, lit_petites(travail), dit)
    dit("lakes and rivers")
    resultats.append(fait_lacs(lacs, iles_des_lacs, dit))
    resultats.append(fait_rivieres([lit_couche(f"rivieres {k}", travail) for k in range(3)], cotes, lacs, dit))
    return resultats


def fait_villes(travail, sortie):
    """Villes.txt, and its row of the table."""
    dit("towns")
    villes = choisit(lit_villes(travail), noms_francais(), lit_couche("cotes", travail))
    octets = texte_villes(villes).encode("cp1252")
    (sortie / "Villes.txt").write_bytes(octets)
    classes = [sum(1 for v in villes if v["classe"] == c) for c in range(1, 7)]
    return COLONNES.format("Villes.txt", octets.count(b"\n"), f"{len(villes)} towns: " + " ".join(map(str, classes)),
                           len(octets), "", "", "")


def main():
    """Writes the files asked for and prints the table."""
    lecteur = argparse.ArgumentParser(prog="donnees_carte", description=__doc__.splitlines()[0])
    lecteur.add_argument("--travail", type=Path, default=RACINE / "build" / "donnees_carte", help="work folder")
    lecteur.add_argument("--sortie", type=Path, default=RACINE / "data", help="where the files go")
    lecteur.add_argument("--sans-villes", action="store_true", help="the lines alone")
    lecteur.add_argument("--sans-lignes", action="store_true", help="the towns alone")
    choix = lecteur.parse_args()
    choix.travail = choix.travail.resolve()
    choix.travail.mkdir(parents=True, exist_ok=True)
    rangees = [COLONNES.format("File", "Lines", "Holds", "Bytes", "Tolerance", "Error nm", "Fine part"),
               "|---|---:|---|---:|---:|---:|---:|"]
    if not choix.sans_lignes:
        for r in lignes_du_monde(choix.travail):
            octets = texte(r["lignes"]).encode("ascii")
            (choix.sortie / r["nom"]).write_bytes(octets)
            if r["croisements"]:
                dit(f"{r['nom']}: the source itself crosses {r['croisements']} times")
            rangees.append(COLONNES.format(r["nom"], compte(r["lignes"]), r["quoi"], len(octets),
                                           f"{r['tolerance']:.3f}", f"{r['erreur']:.3f}",
                                           f"{r['fine']:.3f}" if r["fine"] else ""))
    if not choix.sans_villes:
        rangees.append(fait_villes(choix.travail, choix.sortie))
    print("\n".join(rangees))


if __name__ == "__main__":
    main()
