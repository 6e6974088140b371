#include "Types.h"

#include "RRx/RRString.h"

using RR::FixPnt3;

FixPnt3& Pressure::operator[](Unit index)
{
    RR_ASSERT(0<=index && index < NUM);
    return elements[index];
}

const FixPnt3& Pressure::operator[](Unit index) const
{
    RR_ASSERT(0<=index && index < NUM);
    return elements[index];
}

FixPnt3& Humidity::operator[](Unit index)
{
    RR_ASSERT(0<=index && index < NUM);
    return elements[index];
}

const FixPnt3& Humidity::operator[](Unit index) const
{
    RR_ASSERT(0<=index && index < NUM);
    return elements[index];
}

RR::SInt32& Temperature::operator[](Unit index)
{
    RR_ASSERT(0<=index && index < NUM);
    return elements[index];
}

const RR::SInt32& Temperature::operator[](Unit index) const
{
    RR_ASSERT(0<=index && index < NUM);
    return elements[index];
}

bool LangCC::Set(const char* l)
{
    const bool letters = l && RR::String::IsLetter(l[0]) && RR::String::IsLetter(l[1]);
    const char first = letters ? RR::String::UpperOf(l[0]) : '-';
    const char second = letters ? RR::String::UpperOf(l[1]) : '-';
    c[0] = first;
    c[1] = second;
    return letters;
}
