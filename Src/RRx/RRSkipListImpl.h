#pragma once

#include "RRx/RRSkipList.h"

namespace RR {

template <class Key, class Data>
SkipList<Key, Data>::SkipList(const SkipList& source)
{
    for (Handle h = source.First(); !h.IsNil(); h.Next()) {
        Insert(h.GetKey(), h.Entry(), Last());
    }
}

template <class Key, class Data>
SkipList<Key, Data>::~SkipList()
{
    SetEmpty();
    delete base;
}

template <class Key, class Data>
SkipList<Key, Data>& SkipList<Key, Data>::operator=(const SkipList& source)
{
    SkipList copy(source);
    SwapResources(copy);
    return *this;
}

template <class Key, class Data>
bool SkipList<Key, Data>::operator==(const SkipList& b) const
{
    if (count != b.count) {
        return false;
    }
    Handle p = First();
    Handle q = b.First();
    while (!p.IsNil() && p.GetKey() == q.GetKey() && p.Entry() == q.Entry()) {
        p.Next();
        q.Next();
    }
    return p.IsNil();
}

template <class Key, class Data>
void SkipList<Key, Data>::SetEmpty()
{
    if (base == nullptr) {
        return;
    }
    for (Element* e = base->next; e != base;) {
        delete std::exchange(e, e->next);
    }
    base->next = base;
    base->prev = base;
    for (int i = 0; i < TOP_LEVEL; ++i) {
        base->skipTower[i] = nullptr;
    }
    count = 0;
}

template <class Key, class Data>
bool SkipList<Key, Data>::Find(const Key& key, Handle& h) const
{
    h.SetNil();
    if (IsEmpty()) {
        return false;
    }
    Element* e = base;
    for (int i = TOP_LEVEL - 1; i >= 0; --i) {
        Element* ahead = e->skipTower[i];
        while (ahead != nullptr && key > ahead->key) {
            e = ahead;
            ahead = e->skipTower[i];
        }
        if (ahead != nullptr && key == ahead->key) {
            h.e = ahead;
            return true;
        }
    }
    for (e = e->next; e != base; e = e->next) {
        if (key == e->key) {
            h.e = e;
            return true;
        }
        if (key < e->key) {
            return false;
        }
    }
    return false;
}

template <class Key, class Data>
bool SkipList<Key, Data>::Find(const Key& key, Data& data) const
{
    Handle h;
    if (Find(key, h)) {
        data = h.Entry();
        return true;
    }
    return false;
}

template <class Key, class Data>
bool SkipList<Key, Data>::Contains(const Key& key) const
{
    Handle h;
    return Find(key, h);
}

template <class Key, class Data>
typename SkipList<Key, Data>::Handle SkipList<Key, Data>::Insert(const Key& key, Handle hint)
{
    MakeBase();
    const UInt08 level = NewRandomLevel();
    return LinkNew(key, level, Locate(key, level, hint));
}

template <class Key, class Data>
typename SkipList<Key, Data>::Handle SkipList<Key, Data>::Insert(const Key& key, const Data& data, Handle hint)
{
    const Handle h = Insert(key, hint);
    h.Entry() = data;
    return h;
}

template <class Key, class Data>
bool SkipList<Key, Data>::InsertUnique(const Key& key, Handle& h, Handle hint)
{
    MakeBase();
    const UInt08 level = NewRandomLevel();
    const Place place = Locate(key, level, hint);
    h = place.equal != nullptr ? HandleOf(place.equal) : LinkNew(key, level, place);
    return place.equal == nullptr;
}

template <class Key, class Data>
bool SkipList<Key, Data>::InsertUnique(Key&& key, Handle& h, Handle hint)
{
    MakeBase();
    const UInt08 level = NewRandomLevel();
    const Place place = Locate(key, level, hint);
    h = place.equal != nullptr ? HandleOf(place.equal) : LinkNew(std::move(key), level, place);
    return place.equal == nullptr;
}

template <class Key, class Data>
bool SkipList<Key, Data>::InsertUnique(const Key& key, const Data& data, Handle hint)
{
    Handle h;
    if (InsertUnique(key, h, hint)) {
        h.Entry() = data;
        return true;
    }
    return false;
}

template <class Key, class Data>
bool SkipList<Key, Data>::InsertUnique(const Key& key)
{
    Handle h;
    return InsertUnique(key, h);
}

template <class Key, class Data>
bool SkipList<Key, Data>::Remove(const Key& key)
{
    Handle h;
    if (Find(key, h)) {
        Remove(h);
        return true;
    }
    return false;
}

template <class Key, class Data>
bool SkipList<Key, Data>::RemoveAll(const Key& key)
{
    // The key may be that of an element about to go.
    const Key kept = key;
    bool removed = false;
    while (Remove(kept)) {
        removed = true;
    }
    return removed;
}

template <class Key, class Data>
bool SkipList<Key, Data>::RemoveFirst()
{
    Handle h = First();
    if (!h.IsNil()) {
        Remove(h);
        return true;
    }
    return false;
}

template <class Key, class Data>
bool SkipList<Key, Data>::RemoveLast()
{
    Handle h = Last();
    if (!h.IsNil()) {
        Remove(h);
        return true;
    }
    return false;
}

template <class Key, class Data>
void SkipList<Key, Data>::Remove(Handle& pos, bool following)
{
    Element* const removed = pos.Get();
    following ? pos.Next() : pos.Prev();

    removed->prev->next = removed->next;
    removed->next->prev = removed->prev;
    Element* before = removed->retro;
    for (int i = removed->level - 1; i >= 0; --i) {
        while (before->skipTower[i] != removed) {
            before = before->skipTower[i];
        }
        Element* const ahead = removed->skipTower[i];
        before->skipTower[i] = ahead;
        if (ahead != nullptr && ahead->level <= before->level) {
            ahead->retro = before;
        }
    }
    if (removed->next->level == 0) {
        removed->next->retro = removed->prev;
    }
    delete removed;
    --count;
}

template <class Key, class Data>
void SkipList<Key, Data>::SwapResources(SkipList& source)
{
    std::swap(count, source.count);
    std::swap(base, source.base);
}

template <class Key, class Data>
UInt16 SkipList<Key, Data>::SLRandom()
{
    next = next * 1103515245u + 12345u;
    return static_cast<UInt16>(next >> 16);
}

/// Each level is followed by the next one with a probability of 1/4, up to `TOP_LEVEL`.
template <class Key, class Data>
UInt08 SkipList<Key, Data>::NewRandomLevel()
{
    if (randomBits == 3) {
        randomBits = SLRandom();
        randomBits |= UInt32{SLRandom()} << 16 | 0xC0000000u;
    }
    UInt08 level = 0;
    do {
        const UInt32 pair = randomBits & 3;
        randomBits >>= 2;
        if (pair != 0) {
            break;
        }
        ++level;
    } while (randomBits != 3);
    return level;
}

template <class Key, class Data>
void SkipList<Key, Data>::MakeBase()
{
    if (base != nullptr) {
        return;
    }
    // The head is in place when its links are set to it.
    CreateRawElement(base, TOP_LEVEL);
    for (int i = 0; i < TOP_LEVEL; ++i) {
        base->skipTower[i] = nullptr;
    }
}

template <class Key, class Data>
void SkipList<Key, Data>::CreateRawElement(Element*& elem, UInt08 level) const
{
    elem = new (std::nothrow) Element;
    RR_ASSERT(elem != __null);
    elem->next = base;
    elem->prev = base;
    elem->retro = base;
    elem->level = level;
    if (level > 0) {
        elem->skipTower = new (std::nothrow) Element*[level];
        RR_ASSERT(elem->skipTower != __null);
    }
}

/// The element from which a short walk reaches the place for `key`, or null if the hint stands elsewhere.
template <class Key, class Data>
typename SkipList<Key, Data>::Element* SkipList<Key, Data>::StartAtHint(const Key& key, Handle hint) const
{
    Element* const e = hint.e;
    if (e == nullptr) {
        return nullptr;
    }
    // The usual case of keys that come in order has to be the quick one.
    if (key > e->key) {
        if (e->next == base) {
            return e;
        }
        if (key == e->next->key) {
            return e->next;
        }
        return key > e->next->key ? nullptr : e;
    }
    if (key == e->key) {
        return e;
    }
    if (key < e->key) {
        return e->prev == base || !(key < e->prev->key) ? e->prev : nullptr;
    }
    return nullptr;
}

/// From the head down the towers, as far as they lead without passing the key; a hit ends it.
template <class Key, class Data>
typename SkipList<Key, Data>::Place SkipList<Key, Data>::Descend(const Key& key, UInt08 level) const
{
    Place place{base, base, nullptr};
    for (int i = TOP_LEVEL - 1; i >= 0 && place.equal == nullptr; --i) {
        Element* ahead = place.after->skipTower[i];
        while (ahead != nullptr && key > ahead->key) {
            place.after = ahead;
            if (ahead->level >= level) {
                place.retro = ahead;
            }
            ahead = ahead->skipTower[i];
        }
        if (ahead != nullptr && key == ahead->key) {
            place.equal = ahead;
        }
    }
    if (place.equal != nullptr) {
        place.after = place.equal;
        if (place.after->level >= level) {
            place.retro = place.after;
        }
    }
    return place;
}

template <class Key, class Data>
typename SkipList<Key, Data>::Place SkipList<Key, Data>::Locate(const Key& key, UInt08 level, Handle hint) const
{
    Place place;
    if (Element* const start = StartAtHint(key, hint)) {
        place = {start, start, start != base && key == start->key ? start : nullptr};
        while (place.retro->level < level) {
            place.retro = place.retro->retro;
        }
    } else {
        place = Descend(key, level);
    }

    // On behind the last element that isn't greater, so that equal keys keep their order.
    for (Element* e = place.after->next; e != base && !(key < e->key); e = e->next) {
        place.after = e;
        if (e->level >= level) {
            place.retro = e;
        }
        if (key == e->key) {
            place.equal = e;
        }
    }
    return place;
}

template <class Key, class Data>
template <class K>
typename SkipList<Key, Data>::Handle SkipList<Key, Data>::LinkNew(K&& key, UInt08 level, const Place& place)
{
    Element* elem;
    CreateRawElement(elem, level);
    elem->key = std::forward<K>(key);
    elem->prev = place.after;
    elem->next = place.after->next;
    elem->prev->next = elem;
    elem->next->prev = elem;
    elem->retro = place.retro;

    Element* before = place.retro;
    for (int i = level - 1; i >= 0; --i) {
        while (before->skipTower[i] != nullptr && !(elem->key < before->skipTower[i]->key)) {
            before = before->skipTower[i];
        }
        Element* const ahead = before->skipTower[i];
        elem->skipTower[i] = ahead;
        before->skipTower[i] = elem;
        if (ahead != nullptr && ahead->level <= level) {
            ahead->retro = elem;
        }
    }
    if (elem->next->level == 0) {
        elem->next->retro = elem;
    }
    ++count;
    return HandleOf(elem);
}

}
