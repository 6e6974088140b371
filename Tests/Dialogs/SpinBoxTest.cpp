#include "QFixP3SpinBox.h"

#include "RRx/RRFixPntTypes.h"

#include <QTest>
#include <gtest/gtest.h>

TEST(SpinBox, KeepsValueAndRangeOnTheRaster)
{
    QFixP3SpinBox box;
    const struct {
        double raster, min, max, value;
        std::tuple<int, int, int> thousandths;
    } rows[] = {{0.5, 0.3, 1.9, 1.3, {500, 1500, 1500}}, {0.1, -10, 10, 1.26, {-10000, 10000, 1300}},
                {0.1, 0.5, 9.9, 0, {500, 9900, 500}},    {0.1, -10, 10, -1.25, {-10000, 10000, -1300}},
                {0.0, 0, 1, 0.0014, {0, 1000, 1}},       {100, -250, 250, 149, {-200000, 200000, 100000}}};
    for (const auto& row : rows) {
        box.SetRaster(row.raster);
        box.setRange(row.min, row.max);
        box.setValue(row.value);
        EXPECT_EQ(std::tuple(box.minimum().Eject(), box.maximum().Eject(), box.value().Eject()), row.thousandths);
    }
    box.SetRaster(50);
    for (const int expected : {100, 150, 200, 200}) {
        EXPECT_EQ(box.value().ToDouble(), expected);
        box.stepUp();
    }
}

TEST(SpinBox, ShowsAndReadsDecimalsWhateverStandsAroundThem)
{
    QFixP3SpinBox box;
    box.setRange(-5, 100);
    box.setSuffix(" Vol.-%");
    for (const auto& [keys, raw] : {std::pair("-1.5", -1500), {"7.25", 7250}, {"", 7250}, {"x", 7250}}) {
        box.selectAll();
        QTest::keyClick(&box, Qt::Key_Delete);
        QTest::keyClicks(&box, keys);
        QTest::keyClick(&box, Qt::Key_Return);
        EXPECT_EQ(box.value().Eject(), raw) << keys;
    }
    using enum RR::FixPnt::Type;
    for (const auto& [type, text] : {std::pair(FixP0, "7"), {FixP1, "7.3"}, {FixP6, "7.250000"}}) {
        box.SetOutputType(type);
        box.setValue(0);
        box.setValue(7.25);
        EXPECT_EQ(box.cleanText(), text);
    }
}
