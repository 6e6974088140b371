#pragma once

#include <QStringList>

class QWidget;

/// Finds what a screen fails to show whole.
namespace FitCheck {

/// One line for each fault of a window on the screen: a label or button whose text or picture is larger than its
/// place, a widget cut off by what it stands in, a text that scrolls though it shouldn't have to, a window
/// beyond the screen. Contents of item views aren't looked at.
QStringList Faults(const QWidget& window, bool mayScroll);

}
