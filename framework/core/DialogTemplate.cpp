#include "framework/core/DialogTemplate.h"

#include <cstddef>
#include <stdexcept>

namespace vorn
{
namespace
{
constexpr std::uint16_t kExtendedSignature = 0xffff;
constexpr std::uint16_t kExtendedVersion = 1;
constexpr std::uint16_t kOrdinalMark = 0xffff;
constexpr std::uint32_t kSetFont = 0x40; // DS_SETFONT; DS_SHELLFONT contains it

/// Thrown inside this file only.
struct EndOfBytes : std::runtime_error
{
    EndOfBytes() : std::runtime_error("template ends too early")
    {
    }
};

/// Little-endian values from a range of bytes.
class Cursor
{
public:
    explicit Cursor(std::span<const std::uint8_t> bytes) : m_bytes(bytes)
    {
    }

    std::uint8_t Byte()
    {
        if (m_at >= m_bytes.size())
            throw EndOfBytes();
        return m_bytes[m_at++];
    }

    std::uint16_t Word()
    {
        const unsigned low = Byte();
        return static_cast<std::uint16_t>(low | static_cast<unsigned>(Byte()) << 8);
    }

    std::uint32_t DoubleWord()
    {
        const std::uint32_t low = Word();
        return low | static_cast<std::uint32_t>(Word()) << 16;
    }

    void AlignToDoubleWord()
    {
        m_at = (m_at + 3) & ~std::size_t{3};
    }

    std::size_t Position() const
    {
        return m_at;
    }

    std::vector<std::uint8_t> Take(std::size_t count)
    {
        if (m_at > m_bytes.size() || count > m_bytes.size() - m_at)
            throw EndOfBytes();
        const auto taken = m_bytes.subspan(m_at, count);
        m_at += count;
        return {taken.begin(), taken.end()};
    }

    std::u16string Text(std::uint16_t first)
    {
        std::u16string text;
        for (std::uint16_t unit = first; unit != 0; unit = Word())
            text += static_cast<char16_t>(unit);
        return text;
    }

    std::u16string Text()
    {
        return Text(Word());
    }

    TemplateName Name()
    {
        const std::uint16_t first = Word();
        if (first == kOrdinalMark)
            return {Word(), {}};
        return {std::nullopt, Text(first)};
    }

    TemplateRect Rect()
    {
        TemplateRect rect;
        rect.x = static_cast<std::int16_t>(Word());
        rect.y = static_cast<std::int16_t>(Word());
        rect.cx = static_cast<std::int16_t>(Word());
        rect.cy = static_cast<std::int16_t>(Word());
        return rect;
    }

private:
    std::span<const std::uint8_t> m_bytes;
    std::size_t m_at = 0;
};

bool IsExtended(std::span<const std::uint8_t> bytes)
{
    Cursor cursor(bytes);
    cursor.Word();
    return cursor.Word() == kExtendedSignature;
}

void ReadExtendedHead(Cursor& cursor, DialogTemplate& result)
{
    cursor.Word(); // version, seen by the caller
    cursor.Word(); // signature
    result.extended = true;
    result.helpId = cursor.DoubleWord();
    result.exStyle = cursor.DoubleWord();
    result.style = cursor.DoubleWord();
}

void ReadPlainHead(Cursor& cursor, DialogTemplate& result)
{
    result.style = cursor.DoubleWord();
    result.exStyle = cursor.DoubleWord();
}

void ReadFont(Cursor& cursor, DialogTemplate& result)
{
    result.pointSize = cursor.Word();
    if (result.extended)
        cursor.DoubleWord(); // weight, italic, character set
    result.typeface = cursor.Text();
}

/// The plain layout counts the size word as part of the creation data, the extended one does not.
std::vector<std::uint8_t> ReadCreationData(Cursor& cursor, bool extended)
{
    const std::uint16_t size = cursor.Word();
    if (extended)
        return cursor.Take(size);
    return cursor.Take(size > 2 ? size - 2u : 0u);
}

DialogTemplateItem ReadItem(Cursor& cursor, bool extended)
{
    DialogTemplateItem item;
    if (extended)
    {
        item.helpId = cursor.DoubleWord();
        item.exStyle = cursor.DoubleWord();
        item.style = cursor.DoubleWord();
        item.rect = cursor.Rect();
        item.id = cursor.DoubleWord();
    }
    else
    {
        item.style = cursor.DoubleWord();
        item.exStyle = cursor.DoubleWord();
        item.rect = cursor.Rect();
        item.id = cursor.Word();
    }
    item.windowClass = cursor.Name();
    item.title = cursor.Name();
    item.creationData = ReadCreationData(cursor, extended);
    return item;
}

DialogTemplate ReadWhole(std::span<const std::uint8_t> bytes)
{
    DialogTemplate result;
    Cursor cursor(bytes);
    if (IsExtended(bytes))
        ReadExtendedHead(cursor, result);
    else
        ReadPlainHead(cursor, result);
    const std::uint16_t count = cursor.Word();
    result.rect = cursor.Rect();
    result.menu = cursor.Name();
    result.windowClass = cursor.Name();
    result.title = cursor.Text();
    if (result.style & kSetFont)
        ReadFont(cursor, result);
    for (unsigned i = 0; i < count; ++i)
    {
        cursor.AlignToDoubleWord();
        result.items.push_back(ReadItem(cursor, result.extended));
    }
    result.size = cursor.Position();
    return result;
}

bool HasUnknownVersion(std::span<const std::uint8_t> bytes)
{
    return IsExtended(bytes) && Cursor(bytes).Word() != kExtendedVersion;
}
} // namespace

std::optional<DialogTemplate> ReadDialogTemplate(std::span<const std::uint8_t> bytes)
{
    try
    {
        if (HasUnknownVersion(bytes))
            return std::nullopt;
        return ReadWhole(bytes);
    }
    catch (const EndOfBytes&)
    {
        return std::nullopt;
    }
}
} // namespace vorn
