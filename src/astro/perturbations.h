#pragma once
// The periodic perturbations of Jupiter, Saturn, Uranus and Neptune.

#include <array>

namespace tolvanis {

enum class GiantPlanet { Jupiter, Saturn, Uranus, Neptune };

// Corrections of the mean elements at one instant.
struct Perturbations {
    double meanLongitude = 0.0;  // A, degrees
    double perihelion = 0.0;     // B, degrees; to be divided by the unperturbed eccentricity
    double eccentricity = 0.0;
    double semiMajorAxis = 0.0;  // AU
    double longitude = 0.0;      // degrees, added directly to the geocentric longitude (Uranus, Neptune)
};

// The principal perturbations published by Meeus, Astronomical Formulae for Calculators (chapter on the
// planets), epoch 1900 January 0.5, every term of the elements, for one instant given in Julian centuries of
// 36525 days from it. The sines and cosines of the common arguments are taken once for all four planets.
class PerturbationSeries {
  public:
    explicit PerturbationSeries(double centuries);
    Perturbations Of(GiantPlanet planet) const;

  private:
    static constexpr std::size_t kArgumentCount = 27;
    double nu_;
    std::array<double, 2 * kArgumentCount + 1> factors_;  // 1, then sine and cosine of each argument
};

}  // namespace tolvanis
