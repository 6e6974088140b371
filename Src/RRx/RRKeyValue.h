#pragma once

#include "RRx/RRSkipList.h"
#include "RRx/RRString.h"

namespace RR {

/// A sorted map from key to value with one text form on the medium, `KEY = "value"` line by line. Files of the
/// same content are byte-identical.
///
/// Characters of a key are 0x21 to 0x7E without '*', '#', '?' and '='; of a value 0x07 to 0x0D, 0x20 to 0x7E
/// and 0xA1 to 0xFF without the double quote, for which there is no escape. An empty value is a missing key.
class KeyValue {
public:
    /// A position in the store, until its entry is removed. Reading an invalid one stops the program.
    class Entry {
    public:
        Entry() = default;

        const String& GetKey() const { return hld.GetKey(); }
        const String& GetValue() const { return hld.Entry(); }
        bool IsValid() const { return !hld.IsNil(); }
        /// These move the position, to an invalid one past the end, and return it.
        Entry& Next();
        Entry& Prev();

    private:
        friend class KeyValue;
        using Handle = SkipList<String, String>::Handle;

        explicit Entry(Handle handle) : hld(handle) {}

        Handle hld;
    };

    /// The same entries; the names play no part.
    bool operator==(const KeyValue& other) const { return list == other.list; }

    /// The value of `key`, empty if it isn't there; good until the entry changes.
    const String& operator()(const String& key) const;
    /// Sets an entry; an empty `value` removes it. `false`, with nothing changed, for a character that can't
    /// be stored, an empty `key`, and the removal of what isn't there.
    bool operator()(const String& key, const String& value);

    bool Has(const String& key) const { return list.Contains(key); }
    bool IsEmpty() const { return list.IsEmpty(); }
    /// Removes the entries and leaves the names alone.
    void SetEmpty() { list.SetEmpty(); }
    SInt32 GetCount() const { return list.GetCount(); }
    /// Invalid on an empty store.
    Entry First() const { return Entry(list.First()); }
    Entry Last() const { return Entry(list.Last()); }

    /// Read a file into the store, which is to be fresh: keys that it already has count as double.
    /// On failure the numbers tell why, each `INVALID` unless it is the reason: `sytaxErr` is the line that
    /// breaks the format, the store is empty then; `dblEntry` is the line that repeats a key, the store then holds
    /// that key alone with the second value. Both `INVALID`: the file can't be read, the store is as it was.
    /// Lines count from 1, and one with line ends in its value as one.
    bool Load();
    bool Load(const String& fn);
    bool Load(const String& fn, SInt32& sytaxErr, SInt32& dblEntry);

    /// Replace the file by the headline and the entries in ascending key order.
    bool Save() const;
    bool Save(const String& fn);

    /// The file last named to `Load` or `Save`.
    String fileName;
    /// Comment that `Save` writes at the top; lines end with LF.
    String headline;

private:
    SkipList<String, String> list;
};

}
