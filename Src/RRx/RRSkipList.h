#pragma once

#include "RRx/RRTypeDefs.h"

#include <new>
#include <utility>

namespace RR {

/// A sorted map that allows duplicate keys, which keep their order of insertion. A handle is valid until its element
/// is removed. Insertion draws from a generator that all lists of the same types share, without a lock.
template <class Key, class Data>
class SkipList {
    /// Elements form a ring through a head element without key and data. A tower of `level` pointers leads to the
    /// next elements of at least level 1, 2, ...; an element of level 0 has none and is found along `next` alone.
    struct Element {
        Key key{};
        Data data{};
        Element* next = nullptr;
        Element* prev = nullptr;
        UInt08 level = 0;
        Element** skipTower = nullptr;
        /// The nearest element before this one of at least its level; of the head itself. Makes removal possible
        /// without a search from the head.
        Element* retro = nullptr;

        ~Element() { delete[] skipTower; }
        bool IsHead() const { return retro == this; }
    };

public:
    /// A position in the map; nil where there is none. Reading a nil handle stops the program.
    class Handle {
    public:
        const Key& GetKey() const { return Get()->key; }
        Data& Entry() const { return Get()->data; }

        bool IsNil() const { return e == nullptr; }
        void SetNil() { e = nullptr; }
        bool IsFirst() const { return Get()->prev->IsHead(); }
        bool IsLast() const { return Get()->next->IsHead(); }
        /// These move the handle, to nil past the end, and return it.
        Handle& Next() { return Set(Get()->next); }
        Handle& Prev() { return Set(Get()->prev); }

        bool operator==(const Handle& b) const { return e == b.e; }
        bool operator!=(const Handle& b) const { return e != b.e; }

    private:
        friend class SkipList;

        Element* Get() const
        {
            RR_ASSERT(e != __null);
            return e;
        }
        Handle& Set(Element* element)
        {
            e = element == nullptr || element->IsHead() ? nullptr : element;
            return *this;
        }

        Element* e = nullptr;
    };

    SkipList() = default;
    SkipList(const SkipList& source);
    ~SkipList();
    SkipList& operator=(const SkipList& source);

    /// The same keys and data in the same order.
    bool operator==(const SkipList& b) const;
    bool operator!=(const SkipList& b) const { return !(*this == b); }

    bool IsEmpty() const { return count == 0; }
    void SetEmpty();
    SInt32 GetCount() const { return count; }

    /// Nil on an empty map.
    Handle First() const { return HandleOf(base == nullptr ? nullptr : base->next); }
    Handle Last() const { return HandleOf(base == nullptr ? nullptr : base->prev); }

    /// `h` stands on any of the elements of that key, on nil if there is none.
    bool Find(const Key& key, Handle& h) const;
    /// Leaves `data` alone if the key isn't there.
    bool Find(const Key& key, Data& data) const;
    bool Contains(const Key& key) const;

    /// Behind the last element of equal key. A hint next to the place saves the search; any other does no harm.
    Handle Insert(const Key& key, Handle hint = Handle());
    Handle Insert(const Key& key, const Data& data, Handle hint = Handle());
    /// False if the key is there already: its entry stays as it is, and `h` is set to it. Otherwise `h` is the new one,
    /// and a key that may be moved from is taken over.
    bool InsertUnique(const Key& key, Handle& h, Handle hint = Handle());
    bool InsertUnique(Key&& key, Handle& h, Handle hint = Handle());
    bool InsertUnique(const Key& key, const Data& data, Handle hint = Handle());
    bool InsertUnique(const Key& key);

    /// Removes one element of that key, or all; false if there is none.
    bool Remove(const Key& key);
    bool RemoveAll(const Key& key);
    /// False on an empty map.
    bool RemoveFirst();
    bool RemoveLast();
    /// `pos` then stands on the following or else on the preceding element, nil if there is none.
    void Remove(Handle& pos, bool following = true);

    void SwapResources(SkipList& source);

private:
    static constexpr UInt08 TOP_LEVEL = 15;

    /// Where a new element goes.
    struct Place {
        Element* after;
        /// The nearest element up to `after` of at least the new level.
        Element* retro;
        /// An element of equal key, or null.
        Element* equal;
    };

    static UInt16 SLRandom();
    static UInt08 NewRandomLevel();
    static Handle HandleOf(Element* e) { return Handle().Set(e); }

    void MakeBase();
    void CreateRawElement(Element*& elem, UInt08 level) const;
    Element* StartAtHint(const Key& key, Handle hint) const;
    Place Descend(const Key& key, UInt08 level) const;
    Place Locate(const Key& key, UInt08 level, Handle hint) const;
    template <class K>
    Handle LinkNew(K&& key, UInt08 level, const Place& place);

    // Of the level generator. The store holds 15 pairs of bits below its two top bits.
    static inline UInt32 next = 1;
    static inline UInt32 randomBits = 3;

    SInt32 count = 0;
    /// The head, made at the first insertion.
    Element* base = nullptr;
};

}

#include "RRx/RRSkipListImpl.h"
