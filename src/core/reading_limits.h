#pragma once

#include <cstdint>

/// How much is read of what others made. What goes beyond is refused in one line that names it
/// (core/bounded_reading.h), before memory is taken for it; what is merely passed over says so here.
namespace morvane {

constexpr std::int64_t kilobyte = 1 << 10, megabyte = 1 << 20;

// Files and answers, in bytes.
inline constexpr std::int64_t largestCycle = 64 * megabyte; ///< as it comes and unpacked: fifty whole ones
inline constexpr std::int64_t largestPlan = 4 * megabyte;   ///< thousands of waypoints
inline constexpr std::int64_t largestColourFile = megabyte; ///< ten colour texts in JSON
inline constexpr std::int64_t largestSharedSet = 64 * kilobyte; ///< the largest look is a sky's, some 2 KB
inline constexpr std::int64_t largestSettings = 4 * megabyte; ///< an INI, ours or the simulator's: some 10 KB
inline constexpr std::int64_t largestRegistryFile = 256 * megabyte; ///< passed over
inline constexpr std::int64_t largestPrefixNote = megabyte;         ///< of a keeper of prefixes: passed over
inline constexpr std::int64_t largestSimulatorNote = 4 * kilobyte;  ///< passed over

// Texts.
inline constexpr std::int64_t longestTextLine = megabyte; ///< bytes, of reports and of a plan of lines
inline constexpr int mostTextLines = 1'000'000; ///< of reports: each takes a hundred bytes, if it has none
inline constexpr int deepestJson = 32;          ///< brackets inside each other; ours have three
inline constexpr std::int64_t mostReports = 100'000;      ///< of one list
inline constexpr std::int64_t longestReport = 4'000;      ///< letters; of a list, passed over
inline constexpr std::int64_t longestRegistryLine = 8192; ///< bytes: no path comes near; passed over

// Pictures, in pixels.
inline constexpr int largestTextureSide = 1024; ///< of a texture and of a base image
inline constexpr int largestPictureSide = 8192; ///< of any other, the skin's included
inline constexpr int largestPictureArea = 4096 * 4096;
inline constexpr std::int64_t largestPictureFile = 128 * megabyte; ///< of that area, with its levels

} // namespace morvane
