#pragma once

#include "RRx/RRList.h"

namespace RR {

template <class T>
List<T>& List<T>::operator=(const List& source)
{
    List copy(source);
    SwapResources(copy);
    return *this;
}

template <class T>
bool List<T>::operator==(const List& b) const
{
    const Element* p = first;
    const Element* q = b.first;
    while (p != nullptr && q != nullptr && p->entry == q->entry) {
        p = p->next;
        q = q->next;
    }
    return p == nullptr && q == nullptr;
}

template <class T>
void List<T>::SetEmpty()
{
    while (first != nullptr) {
        delete std::exchange(first, first->next);
    }
    count = 0;
}

template <class T>
SInt32 List<T>::GetCount() const
{
    if (count == INVALID) {
        count = 0;
        for (const Element* e = first; e != nullptr; e = e->next) {
            ++count;
        }
    }
    return count;
}

template <class T>
typename List<T>::Handle List<T>::Find(const T& entry) const
{
    Element* e = first;
    while (e != nullptr && !(e->entry == entry)) {
        e = e->next;
    }
    return HandleOf(e);
}

template <class T>
bool List<T>::RemoveFirst()
{
    Handle h = First();
    if (!h.IsNil()) {
        Remove(h);
        return true;
    }
    return false;
}

template <class T>
bool List<T>::RemoveLast()
{
    Handle h = Last();
    if (!h.IsNil()) {
        Remove(h);
        return true;
    }
    return false;
}

template <class T>
void List<T>::Remove(Handle& pos, bool following)
{
    Element* const removed = pos.Get();
    following ? pos.Next() : pos.Prev();
    Unlink(removed);
    delete removed;
    ChangeCount(-1);
}

template <class T>
void List<T>::Swap(Handle a, Handle b)
{
    Element* p = a.Get();
    Element* q = b.Get();
    if (p == q) {
        return;
    }
    if (q->next == p) {
        std::swap(p, q);
    }
    Element* const behindQ = q->next;
    if (p->next == q) {
        Unlink(p);
        Link(p, behindQ);
        return;
    }
    Element* const behindP = p->next;
    Unlink(p);
    Unlink(q);
    Link(q, behindP);
    Link(p, behindQ);
}

template <class T>
void List<T>::Separate(Handle from, List& rest)
{
    rest.SetEmpty();
    if (from.IsNil()) {
        return;
    }
    Element* const head = from.e;
    Element* const last = first->prev;
    if (head == first) {
        first = nullptr;
    } else {
        head->prev->next = nullptr;
        first->prev = head->prev;
    }
    head->prev = last;
    rest.first = head;
    rest.count = INVALID;
    count = INVALID;
}

template <class T>
void List<T>::Concatenate(List& source)
{
    if (this == &source || source.IsEmpty()) {
        return;
    }
    if (IsEmpty()) {
        SwapResources(source);
        return;
    }
    Element* const last = first->prev;
    last->next = source.first;
    first->prev = source.first->prev;
    source.first->prev = last;
    source.first = nullptr;
    if (source.count == INVALID) {
        count = INVALID;
    } else {
        ChangeCount(source.count);
    }
    source.count = 0;
}

template <class T>
void List<T>::Sort()
{
    if (IsEmpty()) {
        return;
    }
    Element* const last = first->prev;
    Element* todo = last == first ? nullptr : last->prev;
    while (todo != nullptr) {
        Element* const e = todo;
        // Told before anything moves; the first element's `prev` is the last one.
        todo = e == first ? nullptr : e->prev;
        while (e->next != nullptr && e->entry > e->next->entry) {
            Swap(HandleOf(e), HandleOf(e->next));
        }
    }
}

template <class T>
void List<T>::SwapResources(List& source)
{
    std::swap(count, source.count);
    std::swap(first, source.first);
}

template <class T>
typename List<T>::Handle List<T>::HandleOf(Element* e)
{
    Handle h;
    h.e = e;
    return h;
}

/// Links a copy of `entry` in before `before`, at the end for null.
template <class T>
typename List<T>::Handle List<T>::Insert(const T& entry, Element* before)
{
    Handle newHdl;
    newHdl.e = new (std::nothrow) Element{entry};
    RR_ASSERT(newHdl.e != __null);
    Link(newHdl.e, before);
    ChangeCount(1);
    return newHdl;
}

template <class T>
void List<T>::Link(Element* e, Element* before)
{
    e->next = before;
    if (first == nullptr) {
        e->prev = e;
        first = e;
        return;
    }
    Element*& prevOfNext = (before != nullptr ? before : first)->prev;
    e->prev = prevOfNext;
    prevOfNext = e;
    if (before == first) {
        first = e;
    } else {
        e->prev->next = e;
    }
}

template <class T>
void List<T>::Unlink(Element* e)
{
    if (e == first) {
        first = e->next;
        if (first != nullptr) {
            first->prev = e->prev;
        }
        return;
    }
    e->prev->next = e->next;
    (e->next != nullptr ? e->next : first)->prev = e->prev;
}

template <class T>
void List<T>::AppendCopies(const List& source)
{
    for (const Element* e = source.first; e != nullptr; e = e->next) {
        Append(e->entry);
    }
}

template <class T>
void List<T>::ChangeCount(SInt32 by)
{
    if (count != INVALID) {
        count += by;
    }
}

}
