#pragma once

#include "RRx/RRTypeDefs.h"

#include <new>
#include <utility>

namespace RR {

/// An owned block of `T`. A new block is default-built, so plain numbers in it are unset.
template <class T>
class Array {
public:
    Array() = default;
    explicit Array(SInt32 size) { SetSize(size); }
    Array(const Array& source) { *this = source; }
    ~Array() { delete[] array; }

    Array& operator=(const Array& source)
    {
        if (this != &source) {
            SetSize(source.size);
            for (SInt32 i = 0; i < size; ++i) {
                array[i] = source.array[i];
            }
        }
        return *this;
    }

    /// The same size changes nothing; with any other the contents are lost. A size below 1 gives the empty array.
    void SetSize(SInt32 newSize)
    {
        newSize = newSize < 1 ? 0 : newSize;
        if (newSize == size) {
            return;
        }
        delete[] array;
        array = nullptr;
        size = newSize;
        if (size > 0) {
            array = new (std::nothrow) T[static_cast<std::size_t>(size)];
            RR_ASSERT(array != __null);
        }
    }

    void SetSize(SInt32 newSize, const T& value)
    {
        const T kept = value;
        SetSize(newSize);
        Fill(kept);
    }

    void Fill(const T& value)
    {
        const T kept = value;
        for (SInt32 i = 0; i < size; ++i) {
            array[i] = kept;
        }
    }

    void SetEmpty() { SetSize(0); }
    bool IsEmpty() const { return size == 0; }
    SInt32 GetSize() const { return size; }

    bool operator==(const Array& b) const
    {
        bool equal = size == b.size;
        for (SInt32 i = 0; equal && i < size; ++i) {
            equal = array[i] == b.array[i];
        }
        return equal;
    }
    bool operator!=(const Array& b) const { return !(*this == b); }

    /// The first of `GetSize()` elements, null when empty.
    T* Adr() { return array; }
    const T* Adr() const { return array; }

    T& operator[](SInt32 index)
    {
        RR_ASSERT(index >= 0 && index < size);
        return array[index];
    }
    const T& operator[](SInt32 index) const
    {
        RR_ASSERT(index >= 0 && index < size);
        return array[index];
    }

    void SwapResources(Array& source)
    {
        std::swap(array, source.array);
        std::swap(size, source.size);
    }

private:
    T* array = nullptr;
    SInt32 size = 0;
};

}
