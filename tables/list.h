#pragma once
// A read-only view of a constant array, so that one table can point at rows
// of different lengths (four quarters on one board, six rectangles on
// another) and still be plain constant data.
#include <cstddef>

namespace tables {

template <class T>
class List {
  public:
    constexpr List() = default;
    template <std::size_t N>
    constexpr List(const T (&items)[N]) : first_(items), count_(static_cast<int>(N)) {}

    constexpr int size() const { return count_; }
    constexpr const T& operator[](int i) const { return first_[i]; }
    constexpr const T* begin() const { return first_; }
    constexpr const T* end() const { return first_ + count_; }

  private:
    const T* first_ = nullptr;
    int count_ = 0;
};

}  // namespace tables
