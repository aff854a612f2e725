#pragma once
// Reads a fuzz input from the front: bytes that choose, and bytes that are sent. Past the end
// every read gives zeros or nothing, so that any input, however short, is a whole run.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>

namespace petal::fuzz {

class FuzzInput {
public:
    FuzzInput(const std::uint8_t* data, std::size_t size) : data_(data), size_(size) {}

    std::size_t remaining() const { return size_ - at_; }
    std::uint8_t byte() { return at_ < size_ ? data_[at_++] : 0; }
    std::string bytes(std::size_t count) {
        const std::size_t n = std::min(count, remaining());
        std::string out(reinterpret_cast<const char*>(data_ + at_), n);
        at_ += n;
        return out;
    }

private:
    const std::uint8_t* data_;
    std::size_t size_;
    std::size_t at_ = 0;
};

}  // namespace petal::fuzz
