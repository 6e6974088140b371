#include "RRx/RRKeyValue.h"

#include "RRx/RRFile.h"
#include "RRx/RRKeyValueReader.h"

#include <algorithm>
#include <cstring>
#include <string_view>
#include <utility>

namespace RR {

namespace {

bool IsAllIn(const String& text, KeyValueReader::CharClass charClass)
{
    const char* at = text;
    return std::all_of(at, at + text.GetLen(), [charClass](char c) { return KeyValueReader::IsIn(c, charClass); });
}

String ToString(std::string_view text)
{
    String copy;
    copy.SetLen(static_cast<SInt32>(text.size()));
    std::memcpy(copy.Adr(), text.data(), text.size());
    return copy;
}

constexpr std::string_view commentStart = "# ";
constexpr std::string_view valueStart = " = \"";
constexpr std::string_view valueEnd = "\"\r\n";
constexpr std::string_view lineEnd = "\r\n";

/// Writes behind one another into a buffer sized beforehand.
class Writer {
public:
    explicit Writer(String& text) : at(text.Adr()) {}

    void Put(std::string_view text) { at = std::copy(text.begin(), text.end(), at); }
    void Put(const String& text) { Put(std::string_view(text.Adr(), static_cast<std::size_t>(text.GetLen()))); }
    void PutBlanks(SInt32 number) { at = std::fill_n(at, number, ' '); }
    void PutPrintable(char c) { *at++ = c < 0x20 || c > 0x7E ? '.' : c; }

private:
    char* at;
};

/// The text of the head without the end of its last line, which makes no further line.
SInt32 HeadLength(const String& headline)
{
    const SInt32 length = headline.GetLen();
    const char* const text = headline;
    return length > 0 && text[length - 1] == '\n' ? length - 1 : length;
}

SInt64 CountHeadBytes(const String& headline)
{
    const char* const text = headline;
    const SInt32 length = HeadLength(headline);
    const SInt64 inner = std::count(text, text + length, '\n');
    const SInt64 framePerLine = static_cast<SInt64>(commentStart.size() + lineEnd.size());
    return headline.IsEmpty() ? 0 : length - inner + (inner + 1) * framePerLine;
}

void PutHead(Writer& writer, const String& headline)
{
    if (headline.IsEmpty()) {
        return;
    }
    writer.Put(commentStart);
    const char* const text = headline;
    for (SInt32 i = 0; i < HeadLength(headline); ++i) {
        if (text[i] == '\n') {
            writer.Put(lineEnd);
            writer.Put(commentStart);
        } else {
            writer.PutPrintable(text[i]);
        }
    }
    writer.Put(lineEnd);
}

}

KeyValue::Entry& KeyValue::Entry::Next()
{
    hld.Next();
    return *this;
}

KeyValue::Entry& KeyValue::Entry::Prev()
{
    hld.Prev();
    return *this;
}

const String& KeyValue::operator()(const String& key) const
{
    static const String missing;
    Entry::Handle h;
    return list.Find(key, h) ? h.Entry() : missing;
}

bool KeyValue::operator()(const String& key, const String& value)
{
    if (key.IsEmpty() || !IsAllIn(key, KeyValueReader::IN_KEY) || !IsAllIn(value, KeyValueReader::IN_VALUE)) {
        return false;
    }
    if (value.IsEmpty()) {
        return list.Remove(key);
    }
    Entry::Handle h;
    list.InsertUnique(key, h);
    h.Entry() = value;
    return true;
}

bool KeyValue::Load()
{
    return Load(fileName);
}

bool KeyValue::Load(const String& fn)
{
    SInt32 sytaxErr;
    SInt32 dblEntry;
    return Load(fn, sytaxErr, dblEntry);
}

bool KeyValue::Load(const String& fn, SInt32& sytaxErr, SInt32& dblEntry)
{
    fileName = fn;
    sytaxErr = INVALID;
    dblEntry = INVALID;
    // The usual file is small, and a block of its size from the heap would be the dearest part of the reading.
    UInt08 block[8192];
    SInt32 num;
    String large;
    std::string_view text;
    if (FILE_Read(fileName, block, sizeof block - 1, num)) {
        block[num] = 0;
        text = std::string_view(reinterpret_cast<const char*>(block), static_cast<std::size_t>(num));
    } else if (FILE_Read(fileName, large)) {
        text = std::string_view(large.Adr(), static_cast<std::size_t>(large.GetLen()));
    } else {
        return false;
    }
    // Files of the writer are sorted: each entry goes right behind the one before it, without a search.
    Entry::Handle latest = list.Last();
    SInt32 line = 1;
    for (KeyValueReader reader(text); !reader.IsAtEnd(); line += reader.TakeLineEnds()) {
        std::string_view key;
        std::string_view value;
        if (!reader.TakeLine(key, value)) {
            list.SetEmpty();
            sytaxErr = line;
            return false;
        }
        if (value.empty()) {
            continue;
        }
        String keyText = ToString(key);
        String valueText = ToString(value);
        if (!list.InsertUnique(std::move(keyText), latest, latest)) {
            list.SetEmpty();
            list.Insert(keyText, valueText);
            dblEntry = line;
            return false;
        }
        latest.Entry().SwapResources(valueText);
    }
    return true;
}

bool KeyValue::Save() const
{
    SInt32 width = 0;
    for (Entry entry = First(); entry.IsValid(); entry.Next()) {
        width = std::max(width, entry.GetKey().GetLen());
    }
    const SInt64 framePerEntry = width + static_cast<SInt64>(valueStart.size() + valueEnd.size());
    SInt64 bytes = CountHeadBytes(headline);
    for (Entry entry = First(); entry.IsValid(); entry.Next()) {
        bytes += framePerEntry + entry.GetValue().GetLen();
    }
    if (bytes > INT32_MAX) {
        return false;
    }

    String text;
    text.SetLen(static_cast<SInt32>(bytes));
    Writer writer(text);
    PutHead(writer, headline);
    for (Entry entry = First(); entry.IsValid(); entry.Next()) {
        writer.Put(entry.GetKey());
        writer.PutBlanks(width - entry.GetKey().GetLen());
        writer.Put(valueStart);
        writer.Put(entry.GetValue());
        writer.Put(valueEnd);
    }
    return FILE_Write(fileName, text);
}

bool KeyValue::Save(const String& fn)
{
    fileName = fn;
    return Save();
}

}
