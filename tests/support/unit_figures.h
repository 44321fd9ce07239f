// The units of the converter and their rates, written down once more for the tests.
#pragma once

#include <charconv>
#include <string>
#include <string_view>
#include <vector>

namespace kav::test {

/// Behind each unit stands its rate. The rates are kept as texts, so that what they are read with
/// is not what the program's table is read with.
struct CategoryFigures {
  std::string_view caption;
  std::string_view units;
};

// clang-format off
inline constexpr CategoryFigures kRateCategories[] = {
    {"01. Area",
     "Acres 4046.8564224; Ares 100; Circular Inches 0.000506707479; Hectares 10000; "
     "Roods 1011.7141056; Square Centimeters 0.0001; Square Feet 0.09290304; "
     "Square Inches 0.00064516; Square Kilometers 1000000; Square Meters 1; "
     "Square Miles 2589988.110336; Square Millimeters 1e-06; Square Yards 0.83612736; "
     "Squares 9.290304; Townships 93239571.972"},
    {"02. Bit and Bytes",
     "Bits 0.125; Bytes 1; Kilobits 128; Kilobytes 1024; Megabits 131072; Megabytes 1048576; "
     "Gigabits 134217728; Gigabytes 1073741824; Terabits 137438953472; Terabytes 1099511627776; "
     "Petabits 140737488355328; Petabytes 1125899906842624; Exabits 1.4411518807585587e+17; "
     "Exabytes 1.152921504606847e+18"},
    {"03. Density",
     "Grains/Gallon (UK) 1.4253948343691203e-05; Grains/Gallon (US) 1.7118011571775823e-05; "
     "Grams/Cubic Centimeters 1; Grams/Liter 0.001; Grams/Milliliters 1; "
     "Kilograms/Cubic Meters 0.001; Kilograms/Liter 1; Megagrams/Cubic Meter 1; "
     "Milligrams/Milliliter 0.001; Milligrams/Liter 1e-06; Ounches/Cubic Inch 1.729994044; "
     "Ounches/Gallon (UK) 0.006236023; Ounches/Gallon (US) 0.007489152; "
     "Pounds/Cubic Inch 27.679904; Pounds/Cubic Foot 0.016018463; Pounds/Gallon (UK) 0.099776373; "
     "Pounds/Gallon (US) 0.119826427; Slugs/Cubic Foot 0.51531788206; Tonnes/Cubic Meter 1; "
     "Tons (UK)/Cubic Yard 1.328939184; Tons (US)/Cubic Yard 1.186552843"},
    {"04. Energy (Work)",
     "BTUs 1055.056; Calories 4.1868; Calories (Food) 4186; Electron Volts 1.60219e-19; "
     "Ergs 1e-07; Foot Pounds-Force 1.355817; Foot Poundals 0.04214; Gigajoules 1000000000; "
     "Horsepower Hours 2684520; Joules 1; Kilocalories 4186.8; Kilojoules 1000; "
     "Kilowatt Hours 3600000; Megajoules 1000000; Newton Meters 1; Therms 105500000; "
     "Watt Seconds 1; Watt Hours 3600"},
    {"05. Flow Rate (By Volume)",
     "Barrels/Day 1.840130728333333e-06; Barrels/Hour 4.416313748e-05; "
     "Barrels/Minute 0.0026497882488; Cubic Feet/Hour 7.86579072e-06; "
     "Cubic Feet/Minute 0.0004719474432; Cubic Inches/Minute 2.731177333333333e-07; "
     "Cubic Inches/Second 1.6387064e-05; Cubic Metres/Day 1.1574074074074073e-05; "
     "Cubic Metres/Hour 0.0002777777777777778; Cubic Metres/Minute 0.016666666666666666; "
     "Cubic Metres/Second 1; Cubic Yards/Day 8.84901456e-06; Cubic Yards/Hour 0.00021237634944; "
     "Gallons(UK)/Day 5.26167824074074e-08; Gallons(UK)/Hour 1.262802777777778e-06; "
     "Gallons(UK)/Minute 7.576816666666667e-05; Gallons(US)/Day 4.38126383888889e-08; "
     "Gallons(US)/Hour 1.05150327333333e-06; Gallons(US)/Minute 6.30901964e-05; "
     "Litres/Day 1.1574074074074074e-08; Litres/Hour 2.7777777777777776e-07; "
     "Litres/Minute 1.6666666666666667e-05; Litres/Second 0.001"},
    {"06. Force",
     "Dynes 1e-05; Kilograms Force 9.80665; Kilonewtons 1000; Kips 4448.222; Meganewtons 1000000; "
     "Newtons 1; Poundals 0.138255; Pounds Force 4.448222; Tonnes Force 9806.65; "
     "Tons Force (UK) 9964.016; Tons Force (US) 8896.443"},
    {"07. Length",
     "AU 149598550000; Barleycorns 0.008467; Cables 182.88; Centimeters 0.01; Chains 20.1168; "
     "Decimeters 0.1; Ells(UK) 0.875; Ems(pica) 0.0042333; Fathoms 1.8288; Feet 0.3048; "
     "Furlongs 201.168; Hands 0.106; Hectometers 100; Inches 0.0254; Kilometers 1000; "
     "Light years 9460500000000000; Meters 1; Micrometers 1e-06; Miles 1609.344; "
     "Millimeters 0.001; Nanometers 1e-09; Parsecs 3.085677e+16; Picometers 1e-12; Yards 0.9144"},
    {"08. Mass and Weight",
     "Carats 0.0002; Grains 6.479891e-05; Grams 0.001; Hudredweights 45.359237; Kilograms 1; "
     "Ounces 0.028349523125; Ounces(troy) 0.0311034768; Pounds 0.45359237; "
     "Pounds(troy) 0.3732417216; Solar masses 1.989e+30; Slugs 14.593903; Stones 6.35029318; "
     "Tons 907.18474; Tonnes 1000"},
    {"09. Power",
     "BTU/Hour 0.293071; BTU/Minute 17.584267; BTU/Second 1055.056; Calories/Hour 0.001163000308; "
     "Calories/Minute 0.069780018; Calories/Second 4.18760469; Gigawatts 1000000000; "
     "Horsepowers (electric) 746; Horsepowers (metric) 735.499; Watts 1; "
     "Joules/Hour 0.0002777777777777778; Joules/Minute 0.016666666666666666; Joules/Second 1; "
     "Kilocalories/Hour 1.162993545; Kilocalories/Minute 69.78367062; "
     "Kilocalories/Second 4166.666667; Kilowatts 1000; Megawatts 1000000"},
    {"10. Pressure and Stress",
     "Atmospheres 101325; Bars 100000; Centimeters Mercury 1333.22; Centimeters Water 98.0665; "
     "Feet/Water 2989.06692; Hectopascals 100; Inches/Water 249.08891; Inches/Mercury 3386.388; "
     "Kilogram/Sq Centimeter 98066.5; Kilogram/Sq Meter 9.80665; Kilopascals 1000; "
     "Kips/Sq Inch 6894760; Meganewtons/Sq Meter 1000000; Meters/Water 9806.65; Millibars 100; "
     "Millimeters/Mercury 133.322; Millimeters/Water 9.80665; Newtons/Sq Centimeter 10000; "
     "Newtons/Sq Meter 1; Newtons/Sq Millimeter 1000000; Pascals 1; Pounds/Sq Foot 47.88; "
     "Pounds/Sq Inch 6894.757; Poundals/Sq Foot 1.44816; Tons (UK)/Sq Foot 107251; "
     "Tons (US)/Sq Foot 95760"},
    {"11. Speed",
     "Centimeters/Minute 0.00016666666666666666; Feet/Hour 8.466683600033866e-05; "
     "Feet/Minute 0.00508; Feet/Second 0.3048; Inches/Minute 0.0004233341800016934; "
     "Kilometers/Hour 0.2777777777777778; Kilometers/Second 1000; Knots 0.514444; Mach 340.2933; "
     "Meters/Hour 0.0002777777777777778; Meters/Minute 0.016666666666666666; Meters/Second 1; "
     "Miles/Hour 0.44704; Miles/Minute 26.8224; Miles/Second 1609.344; Speed Of Light 299790000; "
     "Yards/Hour 0.000254000508001016; Yards/Minute 0.01524; Yards/Second 0.9144"},
    {"13. Torque",
     "Gramf Cm 9.80665e-05; Kgf Cm 0.0980665; Kgf Metres 9.80665; Kilonewton Metres 1000; "
     "Lbf Feet 1.3558179483314003; Lbf Inches 0.1129848290276167; Newton Metres 1; "
     "Ozf Inches 0.0070615518142260435; Poundal Feet 0.0421401100938048; "
     "Ton(UK)f Feet 3037.032204262337; Ton(US)f Feet 2711.635896662801; Tonnef Metres 9806.65"},
    {"14. Volume",
     "Barrels(Oil) 158.987294928; Bushels(UK) 36.36872; Bushels(US) 35.23907016688; "
     "Cubic Centimeters 0.001; Cubic Feet 28.316846592; Cubic Inches 0.016387064; "
     "Cubic Meters 1000; Cubic Millimeters 1e-06; Cubic Yards 764.554857984; Gallons (UK) 4.54609; "
     "Gallons, dry (US) 4.40488377086; Gallons, liquid (US) 3.785411784; Liters 1; "
     "Milliliters 0.001; Pints (UK) 0.56826125; Pints, dry (US) 0.5506104713575; "
     "Pints, liquid (US) 0.473176473; Quarts (UK) 1.1365225; Quarts, dry (US) 1.101220942715; "
     "Quarts, liquid (US) 0.946352946"},
};
// clang-format on

struct UnitFigure {
  std::u16string name;
  double rate = 0;
};

inline UnitFigure FigureOf(std::string_view unit) {
  const std::string_view name = unit.substr(0, unit.rfind(' '));
  UnitFigure figure{.name = {name.begin(), name.end()}};
  std::from_chars(unit.data() + name.size() + 1, unit.data() + unit.size(), figure.rate);
  return figure;
}

/// In their order.
inline std::vector<UnitFigure> FiguresOf(const CategoryFigures& category) {
  constexpr std::string_view kSeparator = "; ";
  std::vector<UnitFigure> figures;
  std::string_view rest = category.units;
  while (!rest.empty()) {
    const std::string_view unit = rest.substr(0, rest.find(kSeparator));
    figures.push_back(FigureOf(unit));
    rest.remove_prefix(unit.size() < rest.size() ? unit.size() + kSeparator.size() : unit.size());
  }
  return figures;
}

}  // namespace kav::test
