#include "RRx/RRString.h"

namespace RR {

namespace {

bool IsWildcard(char c)
{
    return c == '*' || c == '?';
}

/// The end of the literal segment of `patt` at `a`, or -1 if it has a backslash before a plain character.
SInt32 SegmentEnd(const char* patt, SInt32 a)
{
    while (patt[a] != '\0' && !IsWildcard(patt[a])) {
        if (patt[a] == '\\') {
            ++a;
            if (!IsWildcard(patt[a]) && patt[a] != '\\') {
                return -1;
            }
        }
        ++a;
    }
    return a;
}

/// Whether the segment from `a` to `end` stands at `p` of the text; `p` then moves behind it.
bool SegmentMatches(const char* str, const char* patt, SInt32 a, SInt32 end, SInt32& p, bool m)
{
    SInt32 q = p;
    for (; a < end; ++a, ++q) {
        if (patt[a] == '\\') {
            ++a;
        }
        if (str[q] == '\0' || (m ? str[q] != patt[a] : String::LowerOf(str[q]) != String::LowerOf(patt[a]))) {
            return false;
        }
    }
    p = q;
    return true;
}

/// Whether the pattern from `a` on covers the text from `p` on. `m`: upper and lower case differ. `wcd`: a '*' is pending.
bool SubMatch(const char* str, const char* patt, SInt32 a, SInt32 p, bool m, bool wcd)
{
    while (patt[a] != '\0') {
        if (patt[a] == '*') {
            wcd = true;
            ++a;
            continue;
        }
        if (patt[a] == '?') {
            if (str[p] == '\0') {
                return false;
            }
            ++p;
            ++a;
            continue;
        }

        const SInt32 end = SegmentEnd(patt, a);
        if (end < 0) {
            return false;
        }
        if (wcd) {
            for (; str[p] != '\0'; ++p) {
                SInt32 behind = p;
                if (SegmentMatches(str, patt, a, end, behind, m) && SubMatch(str, patt, end, behind, m, false)) {
                    return true;
                }
            }
            return false;
        }
        if (!SegmentMatches(str, patt, a, end, p, m)) {
            return false;
        }
        a = end;
    }
    return wcd || str[p] == '\0';
}

}

bool String::Matches(const char* pattern, bool m) const
{
    return pattern != nullptr && SubMatch(buffer, pattern, 0, 0, m, false);
}

}
