#pragma once

#include "od/oderror.h"

#include <initializer_list>
#include <vector>

/// A growing array whose every access is checked: a bad index throws OdError_InvalidIndex.
template <typename T>
class OdArray
{
public:
    using value_type = T;
    using size_type = unsigned int;
    using iterator = typename std::vector<T>::iterator;
    using const_iterator = typename std::vector<T>::const_iterator;

    OdArray() = default;
    OdArray(std::initializer_list<T> values) : m_values(values) {}

    size_type size() const { return static_cast<size_type>(m_values.size()); }
    size_type length() const { return size(); }
    bool isEmpty() const { return m_values.empty(); }
    void reserve(size_type count) { m_values.reserve(count); }
    size_type physicalLength() const { return static_cast<size_type>(m_values.capacity()); }
    void resize(size_type count) { m_values.resize(count); }
    void clear() { m_values.clear(); }

    void append(T value) { m_values.push_back(std::move(value)); }
    void push_back(T value) { m_values.push_back(std::move(value)); }
    void insertAt(size_type index, T value)
    {
        if (index > size())
            throw OdError_InvalidIndex();
        m_values.insert(m_values.begin() + index, std::move(value));
    }
    void removeAt(size_type index)
    {
        checkIndex(index);
        m_values.erase(m_values.begin() + index);
    }

    T& at(size_type index)
    {
        checkIndex(index);
        return m_values[index];
    }
    const T& at(size_type index) const
    {
        checkIndex(index);
        return m_values[index];
    }
    T& operator[](size_type index) { return at(index); }
    const T& operator[](size_type index) const { return at(index); }
    T& first() { return at(0); }
    T& last() { return at(size() - 1); }
    const T& first() const { return at(0); }
    const T& last() const { return at(size() - 1); }

    bool contains(const T& value) const
    {
        for (const T& entry : m_values)
            if (entry == value)
                return true;
        return false;
    }

    iterator begin() { return m_values.begin(); }
    iterator end() { return m_values.end(); }
    const_iterator begin() const { return m_values.begin(); }
    const_iterator end() const { return m_values.end(); }

    friend bool operator==(const OdArray&, const OdArray&) = default;

private:
    void checkIndex(size_type index) const
    {
        if (index >= m_values.size())
            throw OdError_InvalidIndex();
    }

    std::vector<T> m_values;
};
