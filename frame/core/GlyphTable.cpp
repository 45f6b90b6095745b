#include "frame/core/GlyphTable.h"

namespace vorn
{
namespace
{
constexpr Glyph kGlyphs[] = {
    {"DEG", "\xB0"},  {"VFRWP", "\xB1"}, {"NM", "\xC0"},   {"SM", "\xC1"},  {"KM", "\xC2"},  {"FT", "\xC3"},
    {"M", "\xC4"},    {"KTS", "\xC5"},   {"MPH", "\xC6"},  {"KPH", "\xC7"}, {"MPS", "\xC8"}, {"GAL", "\xC9"},
    {"L", "\xCA"},    {"LBS", "\xCB"},   {"KG", "\xCC"},   {"IN", "\xCD"},  {"YD", "\xCE"},  {"CM", "\xCF"},
    {"MM", "\xD0"},   {"CRS", "\xD1"},   {"BRG", "\xD2"},  {"TRK", "\xD3"}, {"DTK", "\xD4"}, {"MSL", "\xD5"},
    {"AGL", "\xD6"},  {"FL", "\xD7"},    {"/MIN", "\xD8"}, {"<-", "\xD9"},  {"->", "\xDA"},  {"UP", "\xDB"},
    {"DOWN", "\xDC"}, {"ETE", "\xDD"},   {"ETA", "\xDE"},  {"AM", "\xDF"},  {"PM", "\xE0"},  {"LEFT", "l"},
    {"RIGHT", "r"},   {"VORN", "B"},     {"NORTH", "n"},   {"REG", "R"},    {":", ":"},      {"(", "("},
    {")", ")"},       {"-", "-"},        {".", "."},       {"0", "0"},      {"1", "1"},      {"2", "2"},
    {"3", "3"},       {"4", "4"},        {"5", "5"},       {"6", "6"},      {"7", "7"},      {"8", "8"},
    {"9", "9"},       {"<", "<"},        {">", ">"},       {"=", "="},
};
static_assert(std::size(kGlyphs) == 58);
} // namespace

std::span<const Glyph> GlyphTable()
{
    return kGlyphs;
}
} // namespace vorn
