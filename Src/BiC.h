#pragma once

#include "RRx/RRDateTime.h"
#include "RRx/RRFixPnt.h"
#include "RRx/RRString.h"
#include "SLVersion.h"
#include "Types.h"

#include <QString>

// The text form of a value in key-value files. `BiC(value)` writes it; `BiC(text, value, fallback)` reads
// it, and on anything unreadable `value` is `fallback`. Numbers without a value are written as "---", which
// no reader takes for a number. Files live longer than programs: the forms never change.

/// "yes" or "no", read in any case.
RR::String BiC(bool value);
RR::String BiC(RR::SInt32 value);
RR::String BiC(char value);
/// Without blanks at the ends; an empty text reads as the fallback.
RR::String BiC(const RR::String& value);
RR::String BiC(const char* value) = delete;
/// All decimals of the type.
RR::String BiC(RR::FixPnt1 value);
RR::String BiC(RR::FixPnt2 value);
RR::String BiC(RR::FixPnt3 value);
/// `num` elements joined by ",".
RR::String BiC(const RR::FixPnt3* values, RR::SInt32 num);
/// The elements of all units in their order, joined by ",".
RR::String BiC(const Pressure& value);
RR::String BiC(const Humidity& value);
RR::String BiC(const Temperature& value);
RR::String BiC(Pressure::Unit value);
RR::String BiC(Humidity::Unit value);
RR::String BiC(Temperature::Unit value);
RR::String BiC(const LangCC& value);
RR::String BiC(const SVersion& value);
RR::String BiC(const LVersion& value);
/// "YYYY-MM-DD" and "YYYY-MM-DDThh:mm:ss", with an "x" for each digit of an invalid value.
RR::String BiC(const RR::Date& value);
RR::String BiC(const RR::DateTime& value);
/// The UTF-16 code units in decimal, the closing 0 among them, so that any name fits an ASCII file.
RR::String BiC(const QString& value);
RR::String BiC(MeaTransFormat value);

void BiC(const RR::String& text, bool& value, bool fallback);
void BiC(const RR::String& text, RR::SInt32& value, RR::SInt32 fallback);
void BiC(const RR::String& text, char& value, char fallback);
void BiC(const RR::String& text, RR::String& value, const RR::String& fallback);
void BiC(const RR::String& text, RR::FixPnt1& value, RR::FixPnt1 fallback);
void BiC(const RR::String& text, RR::FixPnt2& value, RR::FixPnt2 fallback);
void BiC(const RR::String& text, RR::FixPnt3& value, RR::FixPnt3 fallback);
/// Reads a list of exactly `num` elements; an unreadable one becomes invalid. False, with `values`
/// undefined, for another number of elements or if none is readable.
bool BiC(const RR::String& text, RR::FixPnt3* values, RR::SInt32 num);
/// Also reads the form of three elements that older files have; `MPA` is then invalid, as it is in a fallback.
void BiC(const RR::String& text, Pressure& value, const Pressure& fallback);
void BiC(const RR::String& text, Humidity& value, const Humidity& fallback);
void BiC(const RR::String& text, Temperature& value, const Temperature& fallback);
void BiC(const RR::String& text, Pressure::Unit& value, Pressure::Unit fallback);
void BiC(const RR::String& text, Humidity::Unit& value, Humidity::Unit fallback);
void BiC(const RR::String& text, Temperature::Unit& value, Temperature::Unit fallback);
void BiC(const RR::String& text, LangCC& value, const LangCC& fallback);
void BiC(const RR::String& text, SVersion& value);
void BiC(const RR::String& text, LVersion& value);
void BiC(const RR::String& text, RR::Date& value, const RR::Date& fallback);
void BiC(const RR::String& text, RR::DateTime& value, const RR::DateTime& fallback);
void BiC(const RR::String& text, QString& value, const QString& fallback);
void BiC(const RR::String& text, MeaTransFormat& value, MeaTransFormat fallback);
