#!/usr/bin/env python3
"""Whether two builds of the companion say the same of saved sights, to the last bit: figures and texts of the told
reduction, as `reduit` prints them in French; or those of another verb.

Usage: memes_bits.py PROGRAM OTHER [--visees N] [--graine S] [--lanceur COMMAND] [--verbe VERB]
  PROGRAM, OTHER  two `velmaris-calcul`
  --visees        how many sights, at random; 20,000 by default
  --lanceur       what runs OTHER, as "qemu-aarch64 -L /usr/aarch64-linux-gnu"
Prints how many agree of how many, and the first that don't; ends with 1 where one doesn't."""

import argparse
import json
import random
import shlex
import subprocess
import sys
import tempfile
from pathlib import Path

LOT = 4000
ETOILES, PLANETES = 246, 4


def visee(hasard):
    """The lines of a sight's file: most are those of a careful hand, one in twenty has a field that isn't."""
    corps = hasard.choices((0, 1, 2, 3), (30, 25, 10, 35))[0]
    astre = corps >= 2
    artificiel = hasard.random() < 0.1
    lecture = hasard.uniform(5, 150 if artificiel else 89)
    degres = int(lecture)
    centiemes = hasard.random() < 0.4
    lignes = [
        f"{hasard.randrange(24):02}", f"{hasard.randrange(60):02}", f"{hasard.randrange(60):02}",
        f"{hasard.randint(1, 28):02}", f"{hasard.randint(1, 12):02}", str(hasard.randint(1950, 2060)),
        f"{hasard.randrange(180):02}", f"{hasard.randrange(60):02}",
        f"{hasard.randrange(80):02}", f"{hasard.randrange(60):02}",
        f"{hasard.randrange(120) / 10:.1f}".replace(".", ","), f"{hasard.randint(-30, 30) / 10:.1f}".replace(".", ","),
        f"{hasard.randrange(100 if centiemes else 60):02}", str(degres),
        hasard.choice(("Nord", "Sud")), hasard.choice(("Ouest", "Est")), f"{hasard.randrange(60):02}",
        f" {corps} ", "ARTI" if artificiel else "NATU", f" {2 if astre else hasard.randrange(3)} ",
        "1" if centiemes else "0",
    ]
    if astre:
        lignes.append(f" {hasard.randrange(PLANETES if corps == 2 else ETOILES)} ")
    if hasard.random() < 0.05:
        lignes[hasard.randrange(14)] = hasard.choice(("", "-3", "99", "4,5", "x", "1E5", " 7 ", "400"))
    return "".join(ligne + "\r\n" for ligne in lignes)


def dit(commande, verbe, fichiers):
    langue = ["--langue", "fr"] if verbe == "reduit" else []
    sortie = subprocess.run([*commande, verbe, *langue, *fichiers], stdout=subprocess.PIPE, check=False)
    return sortie.stdout.splitlines()


def main():
    arguments = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    arguments.add_argument("programme")
    arguments.add_argument("autre")
    arguments.add_argument("--visees", type=int, default=20000)
    arguments.add_argument("--graine", type=int, default=1)
    arguments.add_argument("--lanceur", default="")
    arguments.add_argument("--verbe", default="reduit")
    voulu = arguments.parse_args()
    hasard = random.Random(voulu.graine)
    memes = autres = reduites = 0
    with tempfile.TemporaryDirectory() as dossier:
        for debut in range(0, voulu.visees, LOT):
            fichiers = []
            for rang in range(min(LOT, voulu.visees - debut)):
                fichier = Path(dossier) / f"{rang}.LoP"
                fichier.write_bytes(visee(hasard).encode("cp1252"))
                fichiers.append(str(fichier))
            ici = dit([voulu.programme], voulu.verbe, fichiers)
            la = dit([*shlex.split(voulu.lanceur), voulu.autre], voulu.verbe, fichiers)
            if len(ici) != len(fichiers) or len(la) != len(fichiers):
                sys.exit(f"{len(fichiers)} sights, {len(ici)} and {len(la)} lines")
            for une, seconde in zip(ici, la):
                reduites += b'"reduit":true' in une
                if une == seconde:
                    memes += 1
                    continue
                autres += 1
                if autres <= 10:
                    print(une.decode(), seconde.decode(), Path(json.loads(une)["fichier"]).read_text("cp1252"), sep="\n")
    print(f"{memes} of {memes + autres} sights alike, {reduites} of them reduced, seed {voulu.graine}")
    return 1 if autres else 0


if __name__ == "__main__":
    sys.exit(main())
