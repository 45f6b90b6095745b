#pragma once

/// @file
/// Reading dialog templates: the binary form in which dialogs stand in resources and in memory, in both its layouts
/// (DLGTEMPLATE and DLGTEMPLATEEX, described in the Windows documentation under "Dialog Box Templates").
#include "framework/core/Export.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace vorn
{
/// A class, menu or title in a template: a number or a UTF-16 text.
struct TemplateName
{
    std::optional<std::uint16_t> ordinal; ///< resource number or class atom; none when it is a text
    std::u16string text;
};

/// Position and size in dialog units.
struct TemplateRect
{
    std::int16_t x = 0;
    std::int16_t y = 0;
    std::int16_t cx = 0;
    std::int16_t cy = 0;
};

/// A control of a dialog template.
struct DialogTemplateItem
{
    std::uint32_t helpId = 0; ///< extended layout only
    std::uint32_t style = 0;
    std::uint32_t exStyle = 0;
    std::uint32_t id = 0; ///< 16 bits in the plain layout
    TemplateRect rect;
    TemplateName windowClass; ///< 0x80 button, 0x81 edit, 0x82 static, 0x83 list box, 0x84 scroll bar, 0x85 combo box
    TemplateName title;
    std::vector<std::uint8_t> creationData;
};

/// A whole dialog template.
struct DialogTemplate
{
    bool extended = false; ///< DLGTEMPLATEEX
    std::uint32_t helpId = 0;
    std::uint32_t style = 0;
    std::uint32_t exStyle = 0;
    TemplateRect rect;
    TemplateName menu;
    TemplateName windowClass;
    std::u16string title;
    std::uint16_t pointSize = 0; ///< 0 when the template names no font
    std::u16string typeface;
    std::vector<DialogTemplateItem> items;
    std::size_t size = 0; ///< bytes from the beginning to the end of the last control
};

/// Reads a template of either layout. Nothing when the bytes end too early or the extended layout's version is
/// unknown; bytes after the last control are ignored.
HOSTFRAMEWORK_API std::optional<DialogTemplate> ReadDialogTemplate(std::span<const std::uint8_t> bytes);
} // namespace vorn
