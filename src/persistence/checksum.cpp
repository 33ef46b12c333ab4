#include "persistence/checksum.h"

#include <bit>
#include <cstring>

namespace quill {
namespace {

constexpr std::uint64_t odd1 = 0x9E3779B97F4A7C15, odd2 = 0xD6E8FEB86659FD93; // odd, bits well mixed
constexpr std::size_t lanes = 4, lane = sizeof(std::uint64_t), block = lanes * lane;

std::uint64_t Word(const char* bytes) {
    std::uint64_t word;
    std::memcpy(&word, bytes, sizeof word);
    return word;
}

std::uint64_t Mixed(std::uint64_t sum, std::uint64_t word) {
    return std::rotl(sum ^ word * odd1, 29) * odd2;
}

} // namespace

// Four lanes side by side, because one alone waits for its own multiplications.
std::uint64_t Checksum(std::string_view bytes) {
    std::uint64_t sums[lanes] = {odd1, odd2, ~odd1, ~odd2};
    std::size_t at = 0;
    for (; at + block <= bytes.size(); at += block) {
        for (std::size_t i = 0; i < lanes; ++i) sums[i] = Mixed(sums[i], Word(bytes.data() + at + i * lane));
    }
    std::uint64_t sum = bytes.size();
    for (const auto each : sums) sum = Mixed(sum, each);
    for (; at < bytes.size(); ++at) sum = Mixed(sum, static_cast<unsigned char>(bytes[at]));
    return sum ^ sum >> 32;
}

} // namespace quill
