#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace vorn::guard
{

/// One of the fuzz targets, linked into this program under a name of its own. What it does with the
/// bytes is what the fuzzer has it do: any input must leave it unharmed.
struct FuzzTarget
{
    const char* name; ///< as in the folder of its seeds
    int (*run)(const std::uint8_t* data, std::size_t size);
};

std::span<const FuzzTarget> FuzzTargets();

} // namespace vorn::guard
