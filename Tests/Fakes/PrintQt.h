#pragma once

#include <ostream>
#include <QString>
#include <QStringList>

/// Lets a failed comparison show its texts as texts. To be included before it is compared.
inline void PrintTo(const QString& text, std::ostream* stream)
{
    *stream << '"' << text.toStdString() << '"';
}
