#include "QFixP3SpinBox.h"

#include "RRx/RRFixPntTypes.h"

#include <QLineEdit>
#include <QStyleOptionSpinBox>
#include <QTest>
#include <gtest/gtest.h>

namespace {

class Box : public QFixP3SpinBox {
public:
    using QFixP3SpinBox::valueFromText;

    Box(double raster, double min, double max)
    {
        SetRaster(raster);
        setRange(min, max);
    }
    void Touch(QStyle::SubControl arrow)
    {
        QStyleOptionSpinBox option;
        initStyleOption(&option);
        const QRect place = style()->subControlRect(QStyle::CC_SpinBox, &option, arrow, this);
        QTest::mouseClick(this, Qt::LeftButton, {}, place.center());
    }
    void Type(const char* keys)
    {
        lineEdit()->selectAll();
        QTest::keyClick(this, Qt::Key_Delete);
        QTest::keyClicks(this, keys);
        QTest::keyClick(this, Qt::Key_Return);
    }
};

TEST(SpinBox, KeepsValueAndRangeOnTheRaster)
{
    static const struct {
        double raster, min, max, value, expectedMin, expectedMax, expectedValue;
    } rows[] = {
        {0.5, 0.3, 1.9, 1.3, 0.5, 1.5, 1.5}, {0.1, -10, 10, 1.26, -10, 10, 1.3},   {0.1, -10, 10, -1.25, -10, 10, -1.3},
        {0.1, 0.5, 9.9, 0, 0.5, 9.9, 0.5},   {0.0, 0, 1, 0.0014, 0, 1, 0.001},     {100, -250, 250, 149, -200, 200, 100},
    };
    for (const auto& row : rows) {
        Box box(row.raster, row.min, row.max);
        box.setValue(row.value);
        EXPECT_DOUBLE_EQ(box.minimum().ToDouble(), row.expectedMin) << row.raster;
        EXPECT_DOUBLE_EQ(box.maximum().ToDouble(), row.expectedMax) << row.raster;
        EXPECT_DOUBLE_EQ(box.value().ToDouble(), row.expectedValue) << row.raster;
    }

    Box box(0.01, 0, 10);
    box.setValue(1.23);
    box.SetRaster(0.1);
    EXPECT_EQ(box.value().Eject(), 1200);
}

TEST(SpinBox, StepsByItsArrowsUpToTheEnds)
{
    Box box(0.05, 0, 0.1);
    box.resize(200, 50);
    box.show();
    for (const int expected : {50, 100, 100}) {
        box.Touch(QStyle::SC_SpinBoxUp);
        EXPECT_EQ(box.value().Eject(), expected);
    }
    box.Touch(QStyle::SC_SpinBoxDown);
    EXPECT_EQ(box.value().Eject(), 50);
}

TEST(SpinBox, ShowsAndReadsDecimalsWhateverStandsAroundThem)
{
    for (const auto& [type, text] : {std::pair{RR::FixPnt::FixP0, "1"}, {RR::FixPnt::FixP1, "1.3"}, {RR::FixPnt::FixP6, "1.250000"}}) {
        Box box(0.001, 0, 100);
        box.SetOutputType(type);
        box.setValue(1.25);
        EXPECT_EQ(box.text(), text);
    }

    Box box(0.001, -5, 100);
    box.setSuffix(" Vol.-%");
    box.show();
    EXPECT_EQ(box.valueFromText("-1.5"), -1500);
    EXPECT_EQ(box.valueFromText("1,5"), RR::INVALID);
    box.Type("7.5");
    EXPECT_EQ(box.text(), "7.5 Vol.-%");
    for (const char* noNumber : {"", "x"}) {
        box.Type(noNumber);
        EXPECT_EQ(box.value().Eject(), 7500) << noNumber;
    }
}

}
