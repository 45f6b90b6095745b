#pragma once

/// @file
/// A mapper's palette, for pictures that are to have its colours only.
#include "files/PaletteMapper.h"
#include "files/core/PaletteReducer.h"

#include <array>

namespace vorn
{
/// Replaces colours by the entries that the mapper finds; the mapper must outlive it.
class PaletteOfMapper final : public PaletteReducer
{
public:
    explicit PaletteOfMapper(PaletteMapper& mapper);

    std::span<const RGBQUAD> Table() const override;
    void Reduce(const unsigned char* pixels, unsigned char* entries, int count) override;

private:
    PaletteMapper& m_mapper;
    std::array<RGBQUAD, 256> m_table{};
    std::size_t m_count = 0;
};
} // namespace vorn
