#pragma once

#include <span>

/// The laws of chance that a fix is judged by.
namespace velmaris {

/// Factor of the squares of an ellipse's half axes that holds 95 of 100 points, by known deviations: chi-square of two
/// degrees of freedom.
inline constexpr double kFacteurEllipse = 5.991464547107979;

/// The same by deviations estimated from residuals: twice Fisher's F of 2 and `surplus` degrees of freedom.
/// @param surplus  over 0
double FacteurFisher(int surplus);

/// Chance that a chi-square is greater.
/// @param libertes  degrees of freedom; with 0 the chance is 1
double ChanceKhi2(double khi2, int libertes);

/// Chance that a normal of mean 0 and deviation 1 is off by more, to either side.
double ChanceNormale(double ecart);

/// Student's factor: the mean of normals whose deviation is estimated from themselves is within so many of its own
/// deviations in 95 of 100 cases.
/// @param libertes  degrees of freedom, over 0
double FacteurStudent(int libertes);

/// The bound that the largest of several normals passes, to either side, with a given chance.
/// @param correlations  between them, n rows of n, 1 where a row meets its own column
/// @param chance        over 0, under 1
/// @return 0 for none; the chance is at most the one given, and all but that: Hunter's bound, by a tree of pairs
/// Source: D. Hunter, An upper bound for the probability of a union, 1976.
double SeuilDuPlusGrand(std::span<const double> correlations, double chance);

} // namespace velmaris
