"""The pure functions of the tool that makes the chart's data: joining, simplifying, crossings, the antimeridian."""

import sys
import unittest
from pathlib import Path

RACINE = Path(__file__).resolve().parents[2]
DONNEES = RACINE / "data"
sys.dont_write_bytecode = True
sys.path.insert(0, str(RACINE / "tools" / "donnees_carte"))

import numpy as np  # noqa: E402

from cotes import SEULE, TRAIT, Terre, jusqu_a_la_cote, perdues, systemes, trait  # noqa: E402
from croisements import cherche  # noqa: E402
from fichiers import compte, coupe_antimeridien, sans_long_cote, texte  # noqa: E402
from geometrie import aire, deroule, distance, ecarts, vecteurs  # noqa: E402
from raccords import coupe_longs, est_anneau, joint, lit_morceaux  # noqa: E402
from simplifie import Faisceau, Trait, ajuste, simplifie  # noqa: E402
from villes import en_windows1252, sans_surnom  # noqa: E402


def cote_dentelee(nombre=2000, graine=1):
    """A closed coast of some 600 miles round, jagged at every scale."""
    alea = np.random.default_rng(graine)
    angles = np.linspace(0, 2 * np.pi, nombre, endpoint=False)
    rayon = 1.5 + sum(alea.normal(0, 0.3 / k) * np.cos(k * angles + alea.uniform(0, 6)) for k in range(1, 60)) / 3
    points = np.column_stack((10 + 1.5 * rayon * np.cos(angles), 48 + rayon * np.sin(angles)))
    return np.concatenate((points, points[:1]))


def pire_ecart(source, gardes):
    """Greatest distance of a source point from the whole simplified line, each side looked at."""
    ligne, points = source[gardes], np.delete(source, gardes, axis=0)
    ecart = np.full(len(points), np.inf)
    for a, b in zip(ligne, ligne[1:]):
        trois = np.concatenate((a[None], points, b[None]))
        ecart = np.minimum(ecart, ecarts(trois, vecteurs(trois), 0, len(trois) - 1))
    return ecart.max()


class Geometrie(unittest.TestCase):
    def test_a_degree_of_the_equator_is_sixty_miles(self):
        self.assertAlmostEqual(float(distance((0, 0), (1, 0))), 60, places=6)
        self.assertAlmostEqual(float(distance((179.5, 0), (-179.5, 0))), 60, places=6)

    def test_area_of_an_octant(self):
        octant = np.array([(0, 0), (90, 0), (90, 90), (0, 90), (0, 0)], float)
        self.assertAlmostEqual(aire(octant), 4 * np.pi * 6371**2 / 8, delta=1)

    def test_unwrapped_longitudes_do_not_jump(self):
        ligne = deroule(np.array([(179.0, 0), (-179.0, 1), (-178.0, 2), (179.0, 3)]))
        self.assertTrue((np.abs(np.diff(ligne[:, 0])) <= 3).all())
        self.assertEqual(ligne[:, 0].tolist(), [179, 181, 182, 179])

    def test_distance_from_a_side_and_beyond_its_end(self):
        points = np.array([(0, 0), (0.5, 0.1), (2, 0), (1, 0)], float)
        trouve = ecarts(points, vecteurs(points), 0, 3)
        self.assertAlmostEqual(trouve[0], 6, places=2)
        self.assertAlmostEqual(trouve[1], 60, places=2)


class Raccords(unittest.TestCase):
    def test_pieces_join_into_a_ring_over_the_antimeridian(self):
        dump = ["> a", "179 0", "180 1", "> b", "-180 1", "-179 0", "179 0", "> nothing", "5 5", "5 5"]
        lignes = joint(lit_morceaux(dump))
        self.assertEqual(len(lignes), 1)
        self.assertTrue(est_anneau(lignes[0]))
        self.assertEqual(lignes[0][:, 0].tolist(), [179, 180, 181, 179])

    def test_an_open_line_is_followed_from_its_free_end(self):
        dump = ["> b", "1 1", "2 2", "> a", "0 0", "1 1", "> c", "2 2", "3 1"]
        lignes = joint(lit_morceaux(dump))
        self.assertEqual([ligne.tolist() for ligne in lignes], [[[0, 0], [1, 1], [2, 2], [3, 1]]])

    def test_every_piece_is_used_once(self):
        dump = ["> a", "0 0", "1 1", "> b", "1 1", "2 0", "> c", "1 1", "2 2"]
        lignes = joint(lit_morceaux(dump))
        self.assertEqual(sum(len(ligne) - 1 for ligne in lignes), 3)

    def test_long_sides_are_cut(self):
        ligne = np.array([(0, 0), (0.1, 0), (2, 0), (2.1, 0), (9, 0)], float)
        self.assertEqual([m.tolist() for m in coupe_longs([ligne], 30)], [[[0, 0], [0.1, 0]], [[2, 0], [2.1, 0]]])


class Simplification(unittest.TestCase):
    def test_no_dropped_point_is_farther_than_the_tolerance(self):
        for graine in range(3):
            source = cote_dentelee(graine=graine)
            for tolerance in (0.3, 1, 4):
                gardes = simplifie(Trait(source), tolerance)
                self.assertLess(len(gardes), len(source) / 2)
                self.assertLessEqual(pire_ecart(source, gardes), tolerance + 1e-6)

    def test_points_granted_less_are_passed_closer(self):
        source = cote_dentelee()
        parts = np.where(source[:, 0] > 10, 0.25, 1)
        bout = Faisceau([source], lambda points: parts)
        bout.garde(2)
        self.assertLessEqual(bout.erreur(0.25), 0.5)
        self.assertLessEqual(bout.erreur(), 2)
        self.assertGreater(bout.erreur(), 0.5)

    def test_a_ring_keeps_three_corners(self):
        source = cote_dentelee(60)
        source[:, 0] = 10 + (source[:, 0] - 10) / 1000
        source[:, 1] = 48 + (source[:, 1] - 48) / 1000
        gardes = simplifie(Trait(source), 5)
        self.assertEqual(len(gardes), 4)
        self.assertGreater(aire(source[gardes]), 0)

    def test_a_straight_line_keeps_its_ends(self):
        source = np.column_stack((np.linspace(0, 1, 50), np.zeros(50)))
        self.assertEqual(simplifie(Trait(source), 0.01).tolist(), [0, 49])

    def test_a_line_that_doubles_back_keeps_its_turn(self):
        source = np.array([(0, 0), (1, 0), (2, 0), (1, 0.001), (0.5, 0)], float)
        self.assertIn(2, simplifie(Trait(source), 1))

    def test_the_budget_holds_the_error_is_measured_and_nothing_crosses(self):
        source = cote_dentelee(4000)
        bout = Faisceau([source])
        self.assertEqual(ajuste([bout], [300], compte), 0)
        self.assertLessEqual(compte(bout.lignes()), 300)
        self.assertGreater(compte(bout.lignes()), 280)
        self.assertAlmostEqual(bout.erreur(), pire_ecart(source, np.flatnonzero(bout.gardes)), delta=bout.tolerance)
        self.assertLessEqual(bout.erreur(), bout.tolerance)
        cotes = bout.cotes()
        self.assertEqual(len(cherche(source[cotes[:, 0]], source[cotes[:, 1]])), 0)


class Croisements(unittest.TestCase):
    def test_sides_that_cross_are_found_and_no_others(self):
        a = np.array([(0, 0), (0, 1), (5, 5), (0, 0)], float)
        b = np.array([(1, 1), (1, 0), (6, 5), (0, 1)], float)
        self.assertEqual(cherche(a, b).tolist(), [[0, 1]])

    def test_whole_turns_apart(self):
        a = np.array([(180.1, 0), (-179.9, 1)])
        b = np.array([(181.1, 1), (-178.9, 0)])
        self.assertEqual(cherche(a, b).tolist(), [[0, 1]])


class Antimeridien(unittest.TestCase):
    def test_a_ring_over_it_makes_two_pieces_that_end_on_it(self):
        anneau = np.array([(179, 0), (181, 0), (181, 1), (179, 1), (179, 0)], float)
        morceaux = coupe_antimeridien(anneau)
        self.assertEqual(len(morceaux), 2)
        for morceau in morceaux:
            self.assertAlmostEqual(abs(morceau[0, 0]), 180, places=3)
            self.assertAlmostEqual(abs(morceau[-1, 0]), 180, places=3)
            self.assertLessEqual(np.abs(np.diff(morceau[:, 0])).max(), 1.01)
        self.assertEqual(sorted(round(float(np.sign(m[1, 0]))) for m in morceaux), [-1, 1])

    def test_a_point_on_it_makes_no_second_one(self):
        anneau = np.array([(179, 0), (180, 0), (181, 1), (180, 2), (179, 1), (179, 0)], float)
        self.assertEqual([len(m) for m in coupe_antimeridien(anneau)].count(1), 0)
        self.assertEqual(len(coupe_antimeridien(anneau)), 2)

    def test_a_ring_that_only_touches_it_stays_whole(self):
        anneau = np.array([(179, 0), (180, 1), (179, 2), (179, 0)], float)
        self.assertEqual(len([m for m in coupe_antimeridien(anneau) if len(m) > 2]), 1)

    def test_a_ring_round_the_pole_is_one_open_line(self):
        lon = np.linspace(-60, 300, 37)
        morceaux = coupe_antimeridien(np.column_stack((lon, -70 + np.cos(np.radians(lon)))))
        self.assertEqual(len(morceaux), 1)
        self.assertAlmostEqual(abs(morceaux[0][0, 0] - morceaux[0][-1, 0]), 360, places=3)

    def test_a_line_elsewhere_is_left_alone(self):
        ligne = np.array([(361, 1), (362, 2)], float)
        self.assertEqual(coupe_antimeridien(ligne)[0].tolist(), [[1, 1], [2, 2]])


class Fichier(unittest.TestCase):
    def test_points_and_cuts(self):
        lignes = [np.array([(0, 0), (0, 0.25)], float), np.array([(-180, -90), (-179, -90)], float)]
        attendu = "0.5000000 0.3535534\n0.5000000 0.3545355\n2 0\n0.0000001 0.0000000\n0.0027778 0.0000000\n"
        self.assertEqual(texte(lignes), attendu)
        self.assertEqual(compte(lignes), attendu.count("\n"))


    def test_points_are_put_on_long_sides_where_the_chart_draws_them(self):
        morceau = np.array([(0, 60), (3, 60), (3, 62.5), (3.1, 62.5)], float)
        attendu = [(x, 60) for x in np.linspace(0, 3, 5)]  # 90 miles, in four
        attendu += [(3, y) for y in np.linspace(60, 62.5, 8)[1:]] + [(3.1, 62.5)]  # 150 miles, in seven
        np.testing.assert_allclose(sans_long_cote(morceau), attendu, atol=1e-12)


def ile(lon, lat, milles):
    """A round island of so many miles across."""
    angles = np.linspace(0, 2 * np.pi, 25)
    rayon = milles / 120
    points = np.column_stack((lon + rayon * np.cos(angles) / np.cos(np.radians(lat)), lat + rayon * np.sin(angles)))
    return np.concatenate((points[:-1], points[:1]))


class IlesSeules(unittest.TestCase):
    def test_an_island_farther_than_five_miles_from_anything_drawn_is_drawn(self):
        dessinee = ile(10, 48, 4)
        loin, pres = ile(10, 48 + (2 + SEULE + 0.5) / 60, 0.5), ile(10, 48 + (2 + SEULE - 0.5) / 60, 0.5)
        self.assertEqual(len(perdues([loin], [dessinee])), 1)
        self.assertEqual(perdues([pres], [dessinee]), [])

    def test_of_two_neighbours_the_larger_is_drawn_and_counts_for_the_other(self):
        grande, petite = ile(10, 48, 2), ile(10, 48 + 3 / 60, 0.5)
        trouvees = perdues([petite, grande], [ile(20, 48, 4)])
        self.assertEqual(len(trouvees), 1)
        self.assertTrue(np.array_equal(trouvees[0].ligne, grande))

    def test_also_across_the_antimeridian_and_south_of_the_equator(self):
        self.assertEqual(perdues([ile(-179.98, -20, 0.5)], [ile(179.98, -20, 0.5)]), [])
        self.assertEqual(len(perdues([ile(-179.8, -20, 0.5)], [ile(179.8, -20, 0.5)])), 1)

    def test_a_small_one_is_a_stroke_of_500_metres_at_least_about_its_middle(self):
        for milles in (0.001, 0.05, 0.2, 1.0, TRAIT - 0.1):
            bouts = trait(Terre(ile(10, 60, milles)))
            self.assertAlmostEqual(float(distance(*bouts)), max(milles, 500 / 1852), delta=0.02 * max(milles, 0.27))
            self.assertLess(float(distance(bouts.mean(axis=0), (10, 60))), 0.05)
        self.assertIsNone(trait(Terre(ile(10, 60, TRAIT + 0.1))))


class Embouchures(unittest.TestCase):
    COTE = np.array([(0, lat) for lat in np.arange(44, 50, 0.01)])

    def mene(self, *rivieres, lacs=()):
        return jusqu_a_la_cote([np.array(r, float) for r in rivieres], [self.COTE], list(lacs))

    def test_a_river_that_ends_short_of_its_coast_is_led_there(self):
        aval, amont = [(0.2, 47), (1, 47.1)], [(1, 47.1), (2, 47)]
        menee, laissee = self.mene(aval, amont)
        np.testing.assert_allclose(menee[0], (0, 47), atol=0.006)
        np.testing.assert_array_equal(menee[1:], aval)
        np.testing.assert_array_equal(laissee, amont)

    def test_one_that_is_there_already_or_ends_far_off_or_in_a_lake_is_left(self):
        for riviere in ([(0.01, 47), (1, 47)], [(0.5, 47), (2, 47)]):
            np.testing.assert_array_equal(self.mene(riviere)[0], riviere)
        dans_un_lac = [(0.2, 47), (1, 47)]
        np.testing.assert_array_equal(self.mene(dans_un_lac, lacs=[ile(0.2, 47, 1)])[0], dans_un_lac)

    def test_rivers_that_meet_end_to_end_are_one_system(self):
        lignes = [np.array(r, float) for r in ([(0, 0), (1, 1)], [(1, 1), (2, 0)], [(5, 5), (6, 6)], [(2, 0), (3, 3)])]
        self.assertEqual(sorted(map(sorted, systemes(lignes))), [[0, 1, 3], [2]])


class Noms(unittest.TestCase):
    def test_letters_that_windows_1252_lacks(self):
        self.assertEqual(en_windows1252("Łódź"), "Lódz")
        self.assertEqual(en_windows1252("Ḩalwān"), "Halwan")
        self.assertEqual(en_windows1252("Tórshavn"), "Tórshavn")
        self.assertEqual(en_windows1252("Nuku‘alofa"), "Nuku'alofa")
        self.assertEqual(en_windows1252("a;b"), "a,b")

    def test_what_a_gazetteer_adds(self):
        self.assertEqual(sans_surnom("City of Balikpapan"), "Balikpapan")
        self.assertEqual(sans_surnom("Kalibo (poblacion)"), "Kalibo")
        self.assertEqual(sans_surnom("Mexico City"), "Mexico City")


def cotes_du_fichier(nom):
    """First and last points in degrees of all sides of a committed file."""
    points = np.loadtxt(DONNEES / nom)
    coupures = points[:, 0] > 1
    points = np.column_stack((points[:, 0] * 360 - 180, points[:, 1] * 180 * np.sqrt(2) - 90))
    cotes = ~(coupures[1:] | coupures[:-1])
    return points[:-1][cotes], points[1:][cotes]


class Donnees(unittest.TestCase):
    def croisements(self, *noms):
        fichiers = [cotes_du_fichier(nom) for nom in noms]
        return len(cherche(*(np.concatenate(points) for points in zip(*fichiers))))

    def test_no_coasts_cross(self):
        self.assertEqual(self.croisements("Contours.Asc", "Iles.Asc"), 0)
        self.assertEqual(self.croisements("Totale.asc"), 0)
        self.assertEqual(self.croisements("Lacs.Asc"), 0)


if __name__ == "__main__":
    unittest.main()
