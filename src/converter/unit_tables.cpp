#include "converter/unit_tables.h"

// Captions (with their spellings) and rates never change, so that users find their units and get
// the results that they always got. Some rates are older or rounded sizes of their units;
// docs/units.md names them. The comment of each table tells its base unit.

namespace kav {
namespace {

// Square meters.
constexpr Unit kArea[] = {
    {u"Acres", 4046.8564224},
    {u"Ares", 100},
    {u"Circular Inches", 0.000506707479},
    {u"Hectares", 10000},
    {u"Roods", 1011.7141056},
    {u"Square Centimeters", 0.0001},
    {u"Square Feet", 0.09290304},
    {u"Square Inches", 0.00064516},
    {u"Square Kilometers", 1000000},
    {u"Square Meters", 1},
    {u"Square Miles", 2589988.110336},
    {u"Square Millimeters", 1e-06},
    {u"Square Yards", 0.83612736},
    {u"Squares", 9.290304},
    {u"Townships", 93239571.972},
};

// Bytes. A kilobyte is 1024 of them, and each further step 1024 again.
constexpr Unit kBitAndBytes[] = {
    {u"Bits", 0.125},
    {u"Bytes", 1},
    {u"Kilobits", 128},
    {u"Kilobytes", 1024},
    {u"Megabits", 131072},
    {u"Megabytes", 1048576},
    {u"Gigabits", 134217728},
    {u"Gigabytes", 1073741824},
    {u"Terabits", 137438953472},
    {u"Terabytes", 1099511627776},
    {u"Petabits", 140737488355328},
    {u"Petabytes", 1125899906842624},
    {u"Exabits", 1.4411518807585587e+17},
    {u"Exabytes", 1.152921504606847e+18},
};

// Grams per cubic centimeter.
constexpr Unit kDensity[] = {
    {u"Grains/Gallon (UK)", 1.4253948343691203e-05},
    {u"Grains/Gallon (US)", 1.7118011571775823e-05},
    {u"Grams/Cubic Centimeters", 1},
    {u"Grams/Liter", 0.001},
    {u"Grams/Milliliters", 1},
    {u"Kilograms/Cubic Meters", 0.001},
    {u"Kilograms/Liter", 1},
    {u"Megagrams/Cubic Meter", 1},
    {u"Milligrams/Milliliter", 0.001},
    {u"Milligrams/Liter", 1e-06},
    {u"Ounches/Cubic Inch", 1.729994044},
    {u"Ounches/Gallon (UK)", 0.006236023},
    {u"Ounches/Gallon (US)", 0.007489152},
    {u"Pounds/Cubic Inch", 27.679904},
    {u"Pounds/Cubic Foot", 0.016018463},
    {u"Pounds/Gallon (UK)", 0.099776373},
    {u"Pounds/Gallon (US)", 0.119826427},
    {u"Slugs/Cubic Foot", 0.51531788206},
    {u"Tonnes/Cubic Meter", 1},
    {u"Tons (UK)/Cubic Yard", 1.328939184},
    {u"Tons (US)/Cubic Yard", 1.186552843},
};

// Joules.
constexpr Unit kEnergy[] = {
    {u"BTUs", 1055.056},
    {u"Calories", 4.1868},
    {u"Calories (Food)", 4186},
    {u"Electron Volts", 1.60219e-19},
    {u"Ergs", 1e-07},
    {u"Foot Pounds-Force", 1.355817},
    {u"Foot Poundals", 0.04214},
    {u"Gigajoules", 1000000000},
    {u"Horsepower Hours", 2684520},
    {u"Joules", 1},
    {u"Kilocalories", 4186.8},
    {u"Kilojoules", 1000},
    {u"Kilowatt Hours", 3600000},
    {u"Megajoules", 1000000},
    {u"Newton Meters", 1},
    {u"Therms", 105500000},
    {u"Watt Seconds", 1},
    {u"Watt Hours", 3600},
};

// Cubic meters per second.
constexpr Unit kFlowRate[] = {
    {u"Barrels/Day", 1.840130728333333e-06},
    {u"Barrels/Hour", 4.416313748e-05},
    {u"Barrels/Minute", 0.0026497882488},
    {u"Cubic Feet/Hour", 7.86579072e-06},
    {u"Cubic Feet/Minute", 0.0004719474432},
    {u"Cubic Inches/Minute", 2.731177333333333e-07},
    {u"Cubic Inches/Second", 1.6387064e-05},
    {u"Cubic Metres/Day", 1.1574074074074073e-05},
    {u"Cubic Metres/Hour", 0.0002777777777777778},
    {u"Cubic Metres/Minute", 0.016666666666666666},
    {u"Cubic Metres/Second", 1},
    {u"Cubic Yards/Day", 8.84901456e-06},
    {u"Cubic Yards/Hour", 0.00021237634944},
    {u"Gallons(UK)/Day", 5.26167824074074e-08},
    {u"Gallons(UK)/Hour", 1.262802777777778e-06},
    {u"Gallons(UK)/Minute", 7.576816666666667e-05},
    {u"Gallons(US)/Day", 4.38126383888889e-08},
    {u"Gallons(US)/Hour", 1.05150327333333e-06},
    {u"Gallons(US)/Minute", 6.30901964e-05},
    {u"Litres/Day", 1.1574074074074074e-08},
    {u"Litres/Hour", 2.7777777777777776e-07},
    {u"Litres/Minute", 1.6666666666666667e-05},
    {u"Litres/Second", 0.001},
};

// Newtons.
constexpr Unit kForce[] = {
    {u"Dynes", 1e-05},
    {u"Kilograms Force", 9.80665},
    {u"Kilonewtons", 1000},
    {u"Kips", 4448.222},
    {u"Meganewtons", 1000000},
    {u"Newtons", 1},
    {u"Poundals", 0.138255},
    {u"Pounds Force", 4.448222},
    {u"Tonnes Force", 9806.65},
    {u"Tons Force (UK)", 9964.016},
    {u"Tons Force (US)", 8896.443},
};

// Meters.
constexpr Unit kLength[] = {
    {u"AU", 149598550000},  {u"Barleycorns", 0.008467},
    {u"Cables", 182.88},    {u"Centimeters", 0.01},
    {u"Chains", 20.1168},   {u"Decimeters", 0.1},
    {u"Ells(UK)", 0.875},   {u"Ems(pica)", 0.0042333},
    {u"Fathoms", 1.8288},   {u"Feet", 0.3048},
    {u"Furlongs", 201.168}, {u"Hands", 0.106},
    {u"Hectometers", 100},  {u"Inches", 0.0254},
    {u"Kilometers", 1000},  {u"Light years", 9460500000000000},
    {u"Meters", 1},         {u"Micrometers", 1e-06},
    {u"Miles", 1609.344},   {u"Millimeters", 0.001},
    {u"Nanometers", 1e-09}, {u"Parsecs", 3.085677e+16},
    {u"Picometers", 1e-12}, {u"Yards", 0.9144},
};

// Kilograms.
constexpr Unit kMass[] = {
    {u"Carats", 0.0002},
    {u"Grains", 6.479891e-05},
    {u"Grams", 0.001},
    {u"Hudredweights", 45.359237},
    {u"Kilograms", 1},
    {u"Ounces", 0.028349523125},
    {u"Ounces(troy)", 0.0311034768},
    {u"Pounds", 0.45359237},
    {u"Pounds(troy)", 0.3732417216},
    {u"Solar masses", 1.989e+30},
    {u"Slugs", 14.593903},
    {u"Stones", 6.35029318},
    {u"Tons", 907.18474},
    {u"Tonnes", 1000},
};

// Watts.
constexpr Unit kPower[] = {
    {u"BTU/Hour", 0.293071},
    {u"BTU/Minute", 17.584267},
    {u"BTU/Second", 1055.056},
    {u"Calories/Hour", 0.001163000308},
    {u"Calories/Minute", 0.069780018},
    {u"Calories/Second", 4.18760469},
    {u"Gigawatts", 1000000000},
    {u"Horsepowers (electric)", 746},
    {u"Horsepowers (metric)", 735.499},
    {u"Watts", 1},
    {u"Joules/Hour", 0.0002777777777777778},
    {u"Joules/Minute", 0.016666666666666666},
    {u"Joules/Second", 1},
    {u"Kilocalories/Hour", 1.162993545},
    {u"Kilocalories/Minute", 69.78367062},
    {u"Kilocalories/Second", 4166.666667},
    {u"Kilowatts", 1000},
    {u"Megawatts", 1000000},
};

// Pascals.
constexpr Unit kPressure[] = {
    {u"Atmospheres", 101325},
    {u"Bars", 100000},
    {u"Centimeters Mercury", 1333.22},
    {u"Centimeters Water", 98.0665},
    {u"Feet/Water", 2989.06692},
    {u"Hectopascals", 100},
    {u"Inches/Water", 249.08891},
    {u"Inches/Mercury", 3386.388},
    {u"Kilogram/Sq Centimeter", 98066.5},
    {u"Kilogram/Sq Meter", 9.80665},
    {u"Kilopascals", 1000},
    {u"Kips/Sq Inch", 6894760},
    {u"Meganewtons/Sq Meter", 1000000},
    {u"Meters/Water", 9806.65},
    {u"Millibars", 100},
    {u"Millimeters/Mercury", 133.322},
    {u"Millimeters/Water", 9.80665},
    {u"Newtons/Sq Centimeter", 10000},
    {u"Newtons/Sq Meter", 1},
    {u"Newtons/Sq Millimeter", 1000000},
    {u"Pascals", 1},
    {u"Pounds/Sq Foot", 47.88},
    {u"Pounds/Sq Inch", 6894.757},
    {u"Poundals/Sq Foot", 1.44816},
    {u"Tons (UK)/Sq Foot", 107251},
    {u"Tons (US)/Sq Foot", 95760},
};

// Meters per second.
constexpr Unit kSpeed[] = {
    {u"Centimeters/Minute", 0.00016666666666666666},
    {u"Feet/Hour", 8.466683600033866e-05},
    {u"Feet/Minute", 0.00508},
    {u"Feet/Second", 0.3048},
    {u"Inches/Minute", 0.0004233341800016934},
    {u"Kilometers/Hour", 0.2777777777777778},
    {u"Kilometers/Second", 1000},
    {u"Knots", 0.514444},
    {u"Mach", 340.2933},
    {u"Meters/Hour", 0.0002777777777777778},
    {u"Meters/Minute", 0.016666666666666666},
    {u"Meters/Second", 1},
    {u"Miles/Hour", 0.44704},
    {u"Miles/Minute", 26.8224},
    {u"Miles/Second", 1609.344},
    {u"Speed Of Light", 299790000},
    {u"Yards/Hour", 0.000254000508001016},
    {u"Yards/Minute", 0.01524},
    {u"Yards/Second", 0.9144},
};

// Newton meters.
constexpr Unit kTorque[] = {
    {u"Gramf Cm", 9.80665e-05},
    {u"Kgf Cm", 0.0980665},
    {u"Kgf Metres", 9.80665},
    {u"Kilonewton Metres", 1000},
    {u"Lbf Feet", 1.3558179483314003},
    {u"Lbf Inches", 0.1129848290276167},
    {u"Newton Metres", 1},
    {u"Ozf Inches", 0.0070615518142260435},
    {u"Poundal Feet", 0.0421401100938048},
    {u"Ton(UK)f Feet", 3037.032204262337},
    {u"Ton(US)f Feet", 2711.635896662801},
    {u"Tonnef Metres", 9806.65},
};

// Liters.
constexpr Unit kVolume[] = {
    {u"Barrels(Oil)", 158.987294928},
    {u"Bushels(UK)", 36.36872},
    {u"Bushels(US)", 35.23907016688},
    {u"Cubic Centimeters", 0.001},
    {u"Cubic Feet", 28.316846592},
    {u"Cubic Inches", 0.016387064},
    {u"Cubic Meters", 1000},
    {u"Cubic Millimeters", 1e-06},
    {u"Cubic Yards", 764.554857984},
    {u"Gallons (UK)", 4.54609},
    {u"Gallons, dry (US)", 4.40488377086},
    {u"Gallons, liquid (US)", 3.785411784},
    {u"Liters", 1},
    {u"Milliliters", 0.001},
    {u"Pints (UK)", 0.56826125},
    {u"Pints, dry (US)", 0.5506104713575},
    {u"Pints, liquid (US)", 0.473176473},
    {u"Quarts (UK)", 1.1365225},
    {u"Quarts, dry (US)", 1.101220942715},
    {u"Quarts, liquid (US)", 0.946352946},
};

constexpr UnitCategory kCategories[] = {
    {u"01. Area", CategoryKind::Rates, kArea},
    {u"02. Bit and Bytes", CategoryKind::Rates, kBitAndBytes},
    {u"03. Density", CategoryKind::Rates, kDensity},
    {u"04. Energy (Work)", CategoryKind::Rates, kEnergy},
    {u"05. Flow Rate (By Volume)", CategoryKind::Rates, kFlowRate},
    {u"06. Force", CategoryKind::Rates, kForce},
    {u"07. Length", CategoryKind::Rates, kLength},
    {u"08. Mass and Weight", CategoryKind::Rates, kMass},
    {u"09. Power", CategoryKind::Rates, kPower},
    {u"10. Pressure and Stress", CategoryKind::Rates, kPressure},
    {u"11. Speed", CategoryKind::Rates, kSpeed},
    {u"12. Temperature", CategoryKind::Temperature, {}},
    {u"13. Torque", CategoryKind::Rates, kTorque},
    {u"14. Volume", CategoryKind::Rates, kVolume},
    {u"15. User Define", CategoryKind::UserDefined, {}},
};

}  // namespace

std::span<const UnitCategory> UnitCategories() {
  return kCategories;
}

}  // namespace kav
