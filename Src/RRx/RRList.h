#pragma once

#include "RRx/RRTypeDefs.h"

#include <new>
#include <utility>

namespace RR {

/// A doubly linked list that owns its entries. A handle is valid until its element is removed; entries never move.
template <class T>
class List {
    struct Element {
        T entry{};
        Element* next = nullptr;
        /// Of the first element: the last one.
        Element* prev = nullptr;
    };

public:
    /// A position in a list; nil where there is none. Reading a nil handle stops the program.
    class Handle {
    public:
        T& operator()() const { return Get()->entry; }
        T& Entry() const { return Get()->entry; }

        bool IsNil() const { return e == nullptr; }
        void SetNil() { e = nullptr; }
        bool IsFirst() const { return Get()->prev->next == nullptr; }
        bool IsLast() const { return Get()->next == nullptr; }
        /// These move the handle, to nil past the end, and return it.
        Handle& Next()
        {
            e = Get()->next;
            return *this;
        }
        Handle& Prev()
        {
            e = IsFirst() ? nullptr : e->prev;
            return *this;
        }

        bool operator==(const Handle& b) const { return e == b.e; }
        bool operator!=(const Handle& b) const { return e != b.e; }

    private:
        friend class List;

        Element* Get() const
        {
            RR_ASSERT(e != __null);
            return e;
        }

        Element* e = nullptr;
    };

    List() = default;
    List(const List& source) { AppendCopies(source); }
    ~List() { SetEmpty(); }
    List& operator=(const List& source);

    bool operator==(const List& b) const;
    bool operator!=(const List& b) const { return !(*this == b); }

    bool IsEmpty() const { return first == nullptr; }
    void SetEmpty();
    /// One step, but a count of the elements after `Separate` or `Concatenate` with a list of unknown length.
    SInt32 GetCount() const;

    /// Nil on an empty list.
    Handle First() const { return HandleOf(first); }
    Handle Last() const { return HandleOf(IsEmpty() ? nullptr : first->prev); }
    Handle Find(const T& entry) const;
    bool Contains(const T& entry) const { return !Find(entry).IsNil(); }

    /// Without `entry` it is default-built. These return the handle of the new element.
    Handle Prepend(const T& entry = T()) { return Insert(entry, first); }
    Handle Append(const T& entry = T()) { return Insert(entry, nullptr); }
    Handle InsertBefore(Handle pos, const T& entry = T()) { return Insert(entry, pos.Get()); }
    Handle InsertAfter(Handle pos, const T& entry = T()) { return Insert(entry, pos.Get()->next); }

    /// False on an empty list.
    bool RemoveFirst();
    bool RemoveLast();
    /// `pos` then stands on the following or else on the preceding element, nil if there is none.
    void Remove(Handle& pos, bool following = true);

    /// Exchanges the places of two elements of this list; the handles go with their entries.
    void Swap(Handle a, Handle b);
    /// Moves the elements from `from` to the end into `rest`, whose own are lost. A nil handle moves none.
    void Separate(Handle from, List& rest);
    /// Moves all elements of `source` to the end of this list.
    void Concatenate(List& source);
    /// Ascending by `operator>`, stable; handles stay with their entries. Insertion sort: quadratic unless nearly sorted.
    void Sort();
    void SwapResources(List& source);

private:
    static Handle HandleOf(Element* e);
    Handle Insert(const T& entry, Element* before);
    void Link(Element* e, Element* before);
    void Unlink(Element* e);
    void AppendCopies(const List& source);
    void ChangeCount(SInt32 by);

    /// `INVALID` while the number isn't known.
    mutable SInt32 count = 0;
    Element* first = nullptr;
};

}

#include "RRx/RRListImpl.h"
