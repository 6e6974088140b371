#include "QFixP3SpinBox.h"

#include "RRx/RRString.h"

#include <algorithm>

using RR::FixPnt;
using RR::FixPnt3;

namespace {

template <FixPnt::Type PLACES>
QString PrintRounded(FixPnt3 value)
{
    return QString::fromLatin1(RR::String::Print(RR::FixPntOf<PLACES>(value)).Adr());
}

}

QFixP3SpinBox::QFixP3SpinBox(QWidget* parent) : QSpinBox(parent)
{
    QSpinBox::setSingleStep(FixPnt3::Tic().Eject());
}

void QFixP3SpinBox::SetRaster(const FixPnt& raster)
{
    const FixPnt3 step = FixPnt3::Inlay(std::max(FixPnt3(raster).Eject(), FixPnt3::Tic().Eject()));
    if (GetRaster() == step) {
        return;
    }
    QSpinBox::setSingleStep(step.Eject());
    if (value() != RR::Raster(Clamp(value()), step, RR::ROUND)) {
        setValue(value());
    }
}

void QFixP3SpinBox::setMinimum(const FixPnt& value)
{
    QSpinBox::setMinimum(RR::Raster(FixPnt3(value), GetRaster(), RR::CEIL).Eject());
}

void QFixP3SpinBox::setMaximum(const FixPnt& value)
{
    QSpinBox::setMaximum(RR::Raster(FixPnt3(value), GetRaster(), RR::FLOOR).Eject());
}

void QFixP3SpinBox::setRange(const FixPnt& minVal, const FixPnt& maxVal)
{
    setMinimum(minVal);
    setMaximum(maxVal);
}

void QFixP3SpinBox::setValue(const FixPnt& value)
{
    QSpinBox::setValue(RR::Raster(Clamp(FixPnt3(value)), GetRaster(), RR::ROUND).Eject());
}

FixPnt3 QFixP3SpinBox::Clamp(FixPnt3 value) const
{
    return FixPnt3::Inlay(std::clamp(value.Eject(), QSpinBox::minimum(), QSpinBox::maximum()));
}

int QFixP3SpinBox::valueFromText(const QString& text) const
{
    // The base hands over what the line shows.
    QString number = text;
    if (!prefix().isEmpty() && number.startsWith(prefix())) {
        number.remove(0, prefix().size());
    }
    if (!suffix().isEmpty() && number.endsWith(suffix())) {
        number.chop(suffix().size());
    }
    FixPnt3 value;
    return RR::String::Parse(number.toLatin1().constData(), value) ? value.Eject() : RR::INVALID;
}

QValidator::State QFixP3SpinBox::validate(QString& text, int&) const
{
    const int raw = valueFromText(text);
    const bool special = !specialValueText().isEmpty() && text == specialValueText();
    const bool valid = raw != RR::INVALID && raw >= QSpinBox::minimum() && raw <= QSpinBox::maximum();
    return special || valid ? QValidator::Acceptable : QValidator::Intermediate;
}

QString QFixP3SpinBox::textFromValue(int raw) const
{
    const FixPnt3 value = FixPnt3::Inlay(raw);
    switch (outputType) {
    case FixPnt::FixP0: return PrintRounded<FixPnt::FixP0>(value);
    case FixPnt::FixP1: return PrintRounded<FixPnt::FixP1>(value);
    case FixPnt::FixP2: return PrintRounded<FixPnt::FixP2>(value);
    case FixPnt::FixP3: return PrintRounded<FixPnt::FixP3>(value);
    case FixPnt::FixP4: return PrintRounded<FixPnt::FixP4>(value);
    case FixPnt::FixP5: return PrintRounded<FixPnt::FixP5>(value);
    case FixPnt::FixP6: return PrintRounded<FixPnt::FixP6>(value);
    }
    return QString();
}
