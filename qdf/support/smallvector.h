#pragma once

// SmallVector is a vector of plain values that holds the first few of them inside itself: the
// arrays of a document are many and mostly tiny, and memory of their own would cost more than all
// that is done with them.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <new>
#include <type_traits>

template <class Value, std::size_t Few>
class SmallVector {
  static_assert(std::is_trivially_copyable_v<Value>);

 public:
  SmallVector() = default;
  SmallVector(const SmallVector& other) { append(other.begin(), other.size()); }
  SmallVector& operator=(const SmallVector& other) {
    if (this == &other) return *this;
    size_ = 0;
    append(other.begin(), other.size());
    return *this;
  }
  ~SmallVector() = default;

  std::size_t size() const { return size_; }
  const Value* begin() const { return values(); }
  const Value* end() const { return values() + size_; }
  Value& operator[](std::size_t index) { return values()[index]; }
  const Value& operator[](std::size_t index) const { return values()[index]; }

  void push_back(Value value) {
    if (size_ == capacity_) grow(size_ + std::size_t{1});
    values()[size_++] = value;
  }

  // The values may be those of this vector.
  void append(const Value* first, std::size_t count) {
    const bool own = first == begin();
    if (size_ + count > capacity_) grow(size_ + count);
    std::copy_n(own ? begin() : first, count, values() + size_);
    size_ += static_cast<std::uint32_t>(count);
  }

  void insert(std::size_t place, std::size_t count, Value value) {
    resize(size_ + count);
    Value* gap = values() + place;
    std::copy_backward(gap, values() + size_ - count, values() + size_);
    std::fill_n(gap, count, value);
  }

  // New values are zero.
  void resize(std::size_t size) {
    if (size > capacity_) grow(size);
    if (size > size_) std::fill(values() + size_, values() + size, Value());
    size_ = static_cast<std::uint32_t>(size);
  }

 private:
  Value* values() { return many_ != nullptr ? many_.get() : few_; }
  const Value* values() const { return many_ != nullptr ? many_.get() : few_; }

  void grow(std::size_t least) {
    const std::size_t capacity = std::max(least, std::size_t{capacity_} * (many_ ? 2 : 4));
    if (capacity > INT32_MAX) throw std::bad_alloc();
    std::unique_ptr<Value[]> many(new Value[capacity]);
    std::copy_n(begin(), size_, many.get());
    many_ = std::move(many);
    capacity_ = static_cast<std::uint32_t>(capacity);
  }

  std::unique_ptr<Value[]> many_;  // all values, once they are more than a few
  std::uint32_t size_ = 0;
  std::uint32_t capacity_ = Few;
  Value few_[Few];
};
