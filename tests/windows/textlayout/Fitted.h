#pragma once

#include "tests/support/Canvas.h"
#include "toolkit/textlayout/TextLayout.h"

#include <initializer_list>
#include <memory>
#include <utility>

namespace vorn::test
{

/// A text laid out in a box of a given size, and its tree.
struct Fitted
{
    std::unique_ptr<TextLayout::Root> root;
    TextLayout::Text* text = nullptr;
    bool done = false;
};

/// @param set what to put into the text's attributes first, in pairs of name and value.
Fitted Fit(CDC& dc, CSize box, const char* text, std::initializer_list<std::pair<const char*, const char*>> set = {});

int NumberIn(const TextLayout::Item& node, const char* key);
CString TextIn(const TextLayout::Item& node, const char* key);

/// The rectangle around all pixels that are not white; empty without any.
CRect InkOf(const Canvas& canvas, CSize size);

} // namespace vorn::test
