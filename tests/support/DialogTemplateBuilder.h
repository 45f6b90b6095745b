#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

/// Builds dialog templates in memory, in the plain or the extended layout, as the Windows documentation describes them.
class DialogTemplateBuilder
{
public:
    enum class Layout
    {
        Plain,
        Extended
    };

    /// Atoms of the system's control classes.
    enum Class : std::uint16_t
    {
        Button = 0x80,
        Edit = 0x81,
        Static = 0x82,
        ListBox = 0x83,
        ScrollBar = 0x84,
        ComboBox = 0x85
    };

    struct Place
    {
        int x = 0;
        int y = 0;
        int cx = 0;
        int cy = 0;
    };

    explicit DialogTemplateBuilder(Layout layout = Layout::Plain) : m_layout(layout)
    {
    }

    DialogTemplateBuilder& Style(std::uint32_t style, std::uint32_t exStyle = 0);
    DialogTemplateBuilder& Title(std::string_view title);
    DialogTemplateBuilder& At(Place place);
    /// Adds DS_SETFONT to the style.
    DialogTemplateBuilder& Font(int points, std::string_view face);
    /// Registered name of the dialog's own window class.
    DialogTemplateBuilder& WindowClass(std::string_view name);
    DialogTemplateBuilder& Add(Class controlClass, std::uint32_t id, std::uint32_t style, Place place,
                               std::string_view text = {});
    DialogTemplateBuilder& Add(std::string_view controlClass, std::uint32_t id, std::uint32_t style, Place place,
                               std::string_view text = {});
    /// Creation data of the control added last.
    DialogTemplateBuilder& CreationData(std::vector<std::uint8_t> data);

    std::vector<std::uint8_t> Bytes() const;

private:
    struct Item
    {
        std::uint16_t atom;
        std::string_view className;
        std::uint32_t id;
        std::uint32_t style;
        Place place;
        std::string_view text;
        std::vector<std::uint8_t> data;
    };

    void AppendHead(std::vector<std::uint8_t>& out) const;
    void AppendItem(std::vector<std::uint8_t>& out, const Item& item) const;

    Layout m_layout;
    std::uint32_t m_style = 0;
    std::uint32_t m_exStyle = 0;
    Place m_place;
    std::string_view m_title;
    int m_points = 0;
    std::string_view m_face;
    std::string_view m_class;
    std::vector<Item> m_items;
};
