// The coefficient tables, whole: the lists of tests/data/coefficients are evaluated by themselves, row by
// row, and the program's series must give the same sums. A mistyped digit, a lost row or a wrong sign shows
// here.

#include <cmath>
#include <cstdlib>
#include <map>
#include <sstream>

#include "astro/moon_series.h"
#include "astro/perturbations.h"
#include "astro/sun_series.h"
#include "chart/angles.h"
#include "support.h"

namespace tolvanis {
namespace {

constexpr double kTimes[] = {-3.1, -0.7, 0.0, 0.31, 1.2345, 1.9};

using Row = std::map<std::string, std::string>;

std::vector<Row> RowsOf(const std::string& name) {
    std::ifstream file(std::string(TEST_DATA_DIR "/coefficients/") + name);
    const auto fields = [](const std::string& line) {
        std::vector<std::string> parts;
        std::stringstream stream(line + "\t");
        for (std::string part; std::getline(stream, part, '\t');) parts.push_back(part);
        return parts;
    };
    std::string line;
    std::getline(file, line);
    const std::vector<std::string> head = fields(line);
    std::vector<Row> rows;
    while (std::getline(file, line)) {
        std::vector<std::string> values = fields(line);
        values.resize(head.size());
        Row row;
        for (std::size_t i = 0; i < head.size(); ++i) row[head[i]] = values[i];
        rows.push_back(row);
    }
    return rows;
}

double Number(const Row& row, const std::string& column) {
    return std::atof(row.at(column).c_str());
}

double Polynomial(double t, double c0, double c1, double c2, double c3 = 0.0) {
    return Norm360(c0 + t * (c1 + t * (c2 + t * c3)));
}

TEST(Coefficients, OfTheMoon) {
    const std::vector<Row> rows = RowsOf("moon_terms.tsv");
    ASSERT_EQ(rows.size(), 91U);
    for (const double t : kTimes) {
        const double mean = Polynomial(t, 270.434164, 481267.883142, -0.001133, 0.0000019);
        const double node = Polynomial(t, 259.183275, -1934.142008, 0.002078, 0.0000022);
        const std::map<std::string, double> arguments = {
            {"Mp", Polynomial(t, 296.104608, 477198.849108, 0.009192, 0.0000144)},
            {"M", Polynomial(t, 358.475833, 35999.04975, -0.00015, -0.0000033)},
            {"F", mean - node},
            {"D", mean - Polynomial(t, 279.696678, 36000.768925, 0.000303)},
            {"Om", node}};
        std::map<std::string, double> sums;
        for (const Row& row : rows) {
            double argument = 0.0;
            for (const auto& [name, value] : arguments) argument += Number(row, name) * value;
            sums[row.at("quantity")] += Number(row, "amplitude") * SinDeg(argument);
        }
        const double s = mean - node + (sums["longitude"] + sums["latitudeS"]) / 3600.0;
        const MoonPosition moon = ComputeMoon(t);
        const double longitude = mean + (sums["longitude"] + sums["argument_correction"]) / 3600.0;
        EXPECT_NEAR(ArcBetween(moon.longitude, Norm360(longitude)), 0.0, 3e-8) << t;
        EXPECT_NEAR(moon.latitude, (18519.7 * SinDeg(s) + sums["latitudeN"]) / 3600.0, 3e-8) << t;
        EXPECT_NEAR(ArcBetween(moon.trueNode, Norm360(node + sums["true_node"] / 3600.0)), 0.0, 3e-8) << t;
    }
}

TEST(Coefficients, OfTheSun) {
    const std::vector<Row> rows = RowsOf("sun_terms.tsv");
    ASSERT_EQ(rows.size(), 44U);
    for (const double t : kTimes) {
        const double anomaly = Norm360(358.4758333 + 35999.0 * t + (179.1 * t - 0.54 * t * t) / 3600.0);
        std::map<std::string, double> arguments = {{"M", anomaly},
                                                   {"V", 212.45 + 58517.493 * t},
                                                   {"Ma", 319.58 + 19139.977 * t},
                                                   {"J", 225.28 + 3034.583 * t},
                                                   {"S", 175.6 + 1221.794 * t},
                                                   {"D", 350.737486 + 445267.114217 * t},
                                                   {"Mp", 296.104608 + 477198.849108 * t},
                                                   {"F", 11.250889 + 483202.02515 * t}};
        double seconds = 0.0;
        for (const Row& row : rows) {
            double argument = Number(row, "phase") + Number(row, "rate") * t;
            for (const auto& [name, value] : arguments) argument += Number(row, name) * Norm360(value);
            const double amplitude = Number(row, "c0") + Number(row, "c1") * t;
            const double term = amplitude * (row.at("func") == "sin" ? SinDeg(argument) : CosDeg(argument));
            (row.at("target") == "J" ? arguments["J"] : seconds) +=
                row.at("target") == "J" ? term / 3600 : term;
        }
        seconds += (6910.057 - 17.24 * t) * SinDeg(anomaly) + (72.338 - 0.361 * t) * SinDeg(2 * anomaly) +
                   1.054 * SinDeg(3 * anomaly);
        const double mean = 279.6966778 + 36000.0 * t + (2768.13 * t + 1.089 * t * t) / 3600.0;
        const double longitude = mean + seconds / 3600.0 - 0.00569 - 0.00479 * SinDeg(259.18 - 1934.142 * t);
        EXPECT_NEAR(ArcBetween(SunLongitude(t), Norm360(longitude)), 0.0, 3e-8) << t;
    }
}

// The value of a combination such as "3zeta", "2S-Q" or "4G-4S".
double Combination(const std::string& text, const std::map<std::string, double>& values) {
    double sum = 0.0;
    for (std::size_t at = 0; at < text.size();) {
        const double sign = text[at] == '-' ? -1.0 : 1.0;
        if (text[at] == '-' || text[at] == '+') ++at;
        const std::size_t name = text.find_first_not_of("0123456789", at);
        const std::size_t end = std::min(text.size(), text.find_first_of("+-", name));
        const double factor = name > at ? std::atof(text.substr(at, name - at).c_str()) : 1.0;
        sum += sign * factor * Norm360(values.at(text.substr(name, end - name)));
        at = end;
    }
    return sum;
}

TEST(Coefficients, OfThePerturbations) {
    const std::vector<Row> rows = RowsOf("perturbations.tsv");
    ASSERT_EQ(rows.size(), 282U);
    const std::map<std::string, GiantPlanet> planets = {{"Jupiter", GiantPlanet::Jupiter},
                                                        {"Saturn", GiantPlanet::Saturn},
                                                        {"Uranus", GiantPlanet::Uranus},
                                                        {"Neptune", GiantPlanet::Neptune}};
    for (const double t : kTimes) {
        const double nu = t / 5 + 0.1;
        std::map<std::string, double> names = {{"P", 237.47555 + 3034.9061 * t},
                                               {"Q", 265.91650 + 1222.1139 * t},
                                               {"S", 243.51721 + 428.4677 * t},
                                               {"G", 83.76922 + 218.4901 * t}};
        names["V"] = 5 * names["Q"] - 2 * names["P"];
        names["W"] = 2 * names["P"] - 6 * names["Q"] + 3 * names["S"];
        names["zeta"] = names["Q"] - names["P"];
        names["psi"] = names["S"] - names["Q"];
        names["H"] = 2 * names["G"] - names["S"];
        const auto factor = [&](const Row& row, const char* function, const char* argument) {
            if (row.at(function).empty()) return 1.0;
            const double angle = Combination(row.at(argument), names);
            return row.at(function) == "sin" ? SinDeg(angle) : CosDeg(angle);
        };
        std::map<std::string, double> sums;
        for (const Row& row : rows) {
            sums[row.at("planet") + row.at("quantity")] +=
                (Number(row, "c0") + Number(row, "c1") * nu + Number(row, "c2") * nu * nu) *
                factor(row, "f1", "arg1") * factor(row, "f2", "arg2");
        }
        const PerturbationSeries series(t);
        for (const auto& [name, planet] : planets) {
            const Perturbations found = series.Of(planet);
            EXPECT_NEAR(found.meanLongitude, sums[name + "A"], 1e-9) << name << t;
            EXPECT_NEAR(found.perihelion, sums[name + "B"], 1e-9) << name << t;
            EXPECT_NEAR(found.eccentricity, sums[name + "de"] * 1e-7, 1e-9) << name << t;
            EXPECT_NEAR(found.semiMajorAxis, sums[name + "da"] * 1e-6, 1e-9) << name << t;
            EXPECT_NEAR(found.longitude, sums[name + "dlon"], 1e-9) << name << t;
        }
    }
}

}  // namespace
}  // namespace tolvanis
