#pragma once

#include "RRx/RRFixPnt.h"

#include <QSpinBox>

/// The spin box of all numeric settings. Its `int` is the raw value of a `FixPnt3`, in thousandths; through the
/// interface below values pass only as fixed-point, whole or floating numbers: `setValue(3)` means 3.000.
class QFixP3SpinBox : public QSpinBox {
    Q_OBJECT

public:
    /// Raster 0.001, shown with one decimal.
    explicit QFixP3SpinBox(QWidget* parent = nullptr);

    /// How many decimals are shown. The text follows when the box next updates it.
    void SetOutputType(RR::FixPnt::Type type) { outputType = type; }

    /// The distance of the values that the box takes, and the step of its arrows; at least 0.001. The value moves to
    /// the nearest multiple, the range stays.
    void SetRaster(const RR::FixPnt& raster);
    void SetRaster(RR::SInt32 raster) { SetRaster(RR::FixPnt3(raster)); }
    void SetRaster(double raster) { SetRaster(RR::FixPnt3(raster)); }
    RR::FixPnt3 GetRaster() const { return RR::FixPnt3::Inlay(QSpinBox::singleStep()); }

    RR::FixPnt3 minimum() const { return RR::FixPnt3::Inlay(QSpinBox::minimum()); }
    RR::FixPnt3 maximum() const { return RR::FixPnt3::Inlay(QSpinBox::maximum()); }
    RR::FixPnt3 value() const { return RR::FixPnt3::Inlay(QSpinBox::value()); }

    /// The range becomes that of the multiples of the raster within these bounds.
    void setMinimum(const RR::FixPnt& value);
    void setMinimum(RR::SInt32 value) { setMinimum(RR::FixPnt3(value)); }
    void setMinimum(double value) { setMinimum(RR::FixPnt3(value)); }
    void setMaximum(const RR::FixPnt& value);
    void setMaximum(RR::SInt32 value) { setMaximum(RR::FixPnt3(value)); }
    void setMaximum(double value) { setMaximum(RR::FixPnt3(value)); }
    void setRange(const RR::FixPnt& minVal, const RR::FixPnt& maxVal);
    void setRange(RR::SInt32 minVal, RR::SInt32 maxVal) { setRange(RR::FixPnt3(minVal), RR::FixPnt3(maxVal)); }
    void setRange(double minVal, double maxVal) { setRange(RR::FixPnt3(minVal), RR::FixPnt3(maxVal)); }

    /// Takes the nearest multiple of the raster within the range.
    void setValue(const RR::FixPnt& value);
    void setValue(RR::SInt32 value) { setValue(RR::FixPnt3(value)); }
    void setValue(double value) { setValue(RR::FixPnt3(value)); }

    /// These stand in front of the base's, so that nobody sets a step beside the raster.
    int singleStep() const { return RR::INVALID; }
    void setSingleStep(int) {}

protected:
    /// The raw value, with or without prefix and suffix around it; `INVALID` for a text that is no number.
    int valueFromText(const QString& text) const override;
    QString textFromValue(int raw) const override;
    /// Lets a decimal point be typed, which the base would refuse.
    QValidator::State validate(QString& text, int& pos) const override;

private:
    RR::FixPnt3 Clamp(RR::FixPnt3 value) const;

    RR::FixPnt::Type outputType = RR::FixPnt::FixP1;
};
