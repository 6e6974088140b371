#include "PrintIt.h"

#include "Conversions.h"
#include "Settings.h"

#include <gtest/gtest.h>

using namespace RR;

TEST(PrintIt, ANumberGivesUpDecimalsUntilItFits)
{
    const std::tuple<FixPnt3, int, const char*> rows[] = {
        {1.234, 5, "1.234"}, {12.345, 5, "12.35"}, {1234.56, 5, "1235"}, {123456.0, 5, "-----"}, {-0.001, 5, "0.000"},
        {-0.005, 5, "-0.01"}, {-0.01, 4, "0.00"}, {-0.049, 4, "-0.1"}, {-0.044, 4, "0.00"}, {-0.001, 6, "-0.001"},
        {-0.3, 3, "0.0"}, {-0.6, 3, "-1"}, {99.96, 3, "100"}, {INVALID, 5, "-----"}, {INVALID, 0, ""}};
    for (const auto& [value, max, text] : rows) {
        EXPECT_EQ(PrintNum(value, max), text) << value.ToDouble() << ", " << max;
    }
    EXPECT_EQ(PrintNum(FixPnt1(-0.4), 4), "-0.4");
    EXPECT_EQ(PrintNum(INVALID), "---");
}

TEST(PrintIt, AmountsCarryTheirUnit)
{
    for (const auto& [value, text] : {std::pair{FixPnt1(100.0), "100.0 Vol.-%"}, {100.1, ">100 Vol.-%"},
                                      {-0.1, "< 0 Vol.-%"}, {0.0, "0.0 Vol.-%"}, {INVALID, "--- Vol.-%"}}) {
        EXPECT_EQ(PrintAmountSF6(value, true), text);
    }
    EXPECT_EQ(PrintAmountSO2(1.25, false), "1.3 ppmv");
    EXPECT_EQ(PrintAmountHF(-3.0, true), "-3.0 ppm<sub>v</sub>");
    EXPECT_EQ(PrintAmountCO(INVALID, false), "------ ppmv");
}

TEST(PrintIt, ReadingsFollowTheUnitChosen)
{
    settings = Settings::def;
    for (const auto& [unit, low, top] :
         {std::tuple{Pressure::BAR, "1.013 bar", "33.00 bar"}, {Pressure::KPA, "101.3 kPa", "3300 kPa"},
          {Pressure::PSI, "14.69 psi", "478.6 psi"}, {Pressure::MPA, "0.101 MPa", "3.300 MPa"}}) {
        settings.unitPressure = unit;
        EXPECT_EQ(PrintPressure(ConvBarToPressure(1.013)), low);
        EXPECT_EQ(PrintPressure(ConvBarToPressure(33.0)), top);
    }
    EXPECT_EQ(PrintPressure(Pressure()), "----- MPa");

    Humidity humidity(-36.4, -33.5, 123.4, 15.2);
    humidity[Humidity::CELSPR] = -12;
    for (const auto& [unit, plain, nice] :
         {std::tuple{Humidity::FAHR, "-34 °F", "-34 °F"}, {Humidity::PPMV, "123 ppmv", "123 ppm<sub>v</sub>"},
          {Humidity::CELSPR, "-12 °C [Pr]", "-12 °C<sub>[Pr]</sub>"},
          {Humidity::FAHRPR, "------- °F [Pr]", "------- °F<sub>[Pr]</sub>"}}) {
        settings.unitHumidity = unit;
        EXPECT_EQ(PrintHumidity(humidity, false), plain);
        EXPECT_EQ(PrintHumidity(humidity, true), nice);
    }

    for (const auto& [value, text] : {std::pair{23, "23°C"}, {99, "99°C"}, {100, "> 99°C"}, {-99, "-99°C"},
                                      {-100, "<-99°C"}, {INVALID, "××°C"}}) {
        EXPECT_EQ(PrintTemperature(Temperature(value, 0)), text);
    }
    settings.unitTemperature = Temperature::FAHR;
    EXPECT_EQ(PrintTemperature(Temperature(23, 73)), "73°F");
}

TEST(PrintIt, TheCompartmentPressureStopsAtTheRangeOfItsSensor)
{
    settings = Settings::def;
    TavorDev::SensorProfile profile;
    profile.rangeMax = 16;
    EXPECT_EQ(PrintPressureComp(ConvBarToPressure(1.0), profile), "n.v.") << "no such sensor";
    profile.type = TavorDev::SENSOR_P6;
    EXPECT_EQ(PrintPressureComp(ConvBarToPressure(15.999), profile), "16.00 bar");
    EXPECT_EQ(PrintPressureComp(ConvBarToPressure(16.0), profile), "> 16.0 bar");
    settings.unitPressure = Pressure::KPA;
    EXPECT_EQ(PrintPressureComp(ConvBarToPressure(17.0), profile), "> 1600 kPa");
    profile.rangeMax = INVALID;
    EXPECT_EQ(PrintPressureComp(ConvBarToPressure(1.0), profile), "> ---- kPa");
}

TEST(PrintIt, DatesAndTimesFollowTheLanguage)
{
    for (const auto& [language, date, time, longTime, day] :
         {std::tuple{"DE", "31.01.24", "21:05", "21:05:09", "Mi."}, {"US", "1/31/24", "9:05 PM", "9:05:09 PM", "Wed"},
             {"JP", "2024/01/31", "21:05", "21時05分09秒", "水"}}) {
        settings.applLanguage = language;
        EXPECT_EQ(PrintDate(Date(31, 1, 2024)), date);
        EXPECT_EQ(PrintTime(Time(21, 5, 9), false), time);
        EXPECT_EQ(PrintTime(Time(21, 5, 9), true), longTime);
        EXPECT_EQ(PrintDayName(Date::WED), day);
    }
    EXPECT_EQ(PrintDate(Date()), "--.--.--");
    EXPECT_EQ(PrintTime(Time(), true), "--:--:--");
    EXPECT_EQ(PrintDayName(Date::NON), "××");
}
