#pragma once

#include "tests/support/GridText.h"
#include "toolkit/textlayout/core/Alignment.h"
#include "toolkit/textlayout/core/Root.h"
#include "toolkit/textlayout/core/Split.h"
#include "toolkit/textlayout/core/Table.h"

#include <algorithm>
#include <cstddef>
#include <initializer_list>
#include <iterator>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace vorn::test
{

/// Builds a tree of boxes as bytes say: any bytes give a tree.
class RandomLayout
{
public:
    /// @param attributes whether nodes get some that the layout would otherwise give them.
    explicit RandomLayout(std::span<const unsigned char> bytes, bool attributes = true)
        : m_bytes(bytes), m_attributes(attributes)
    {
        const int width = Number();
        const int height = Number();
        root = std::make_unique<TextLayout::Root>(width, height, MakeNode(0));
        SetSome(*root);
    }

    std::unique_ptr<TextLayout::Root> root;
    std::vector<GridText*> texts;

private:
    static constexpr int kDeepest = 40;

    unsigned Next()
    {
        if (m_bytes.empty())
        {
            return 0;
        }
        const unsigned byte = m_bytes.front();
        m_bytes = m_bytes.subspan(1);
        return byte;
    }

    /// Mostly of the size of a picture, now and then anything.
    int Number()
    {
        const unsigned kind = Next();
        const int size = static_cast<int>(Next() * 4);
        return kind < 240 ? size : static_cast<int>(Next() << 24 | Next() << 16 | static_cast<unsigned>(size));
    }

    std::string String()
    {
        const std::size_t wanted = Next(); // before the size is asked for: it takes a byte away
        const std::size_t length = std::min(wanted, m_bytes.size());
        std::string text(reinterpret_cast<const char*>(m_bytes.data()), length);
        m_bytes = m_bytes.subspan(length);
        return text;
    }

    TextLayout::Item* MakeNode(int depth)
    {
        TextLayout::Item* node = MakeBare(depth);
        if (node != nullptr && Next() % 4 == 0)
        {
            SetSome(*node);
        }
        return node;
    }

    TextLayout::Item* MakeBare(int depth)
    {
        if (depth == kDeepest)
        {
            return nullptr;
        }
        switch (Next() % 8)
        {
        case 0:
            return nullptr;
        case 1:
            return new SizedBox(Number(), Number());
        case 2:
        {
            auto item = std::make_unique<TextLayout::Item>();
            for (unsigned count = Next() % 4; count > 0; --count)
            {
                item->Add(MakeNode(depth + 1));
            }
            return item.release();
        }
        case 3:
        {
            const std::string split = Choice({"-50%", "|30%>100", "-34", "|", "40%>20-"});
            return new TextLayout::Split(split.c_str(), MakeNode(depth + 1), MakeNode(depth + 1));
        }
        case 4:
            return new TextLayout::Table("", MakeNode(depth + 1), MakeNode(depth + 1));
        case 5:
        {
            const std::string align = Choice({"right bottom", "center", "vcenter", "left", "center vcenter"});
            return new TextLayout::Alignment(align.c_str(), MakeNode(depth + 1));
        }
        default:
            texts.push_back(new GridText(String().c_str()));
            return texts.back();
        }
    }

    /// One of the usual texts, or any.
    std::string Choice(std::initializer_list<const char*> usual)
    {
        const unsigned which = Next() % 8;
        return which < usual.size() ? std::data(usual)[which] : String();
    }

    void SetSome(TextLayout::Item& node)
    {
        static constexpr const char* kNames[] = {"width",   "height", "maxWidth", "maxHeight",     "x",
                                                 "y",       "right",  "bottom",   "text",          "fontHeight",
                                                 "spacing", "align",  "split",    "maxFontHeight", "minFontHeight"};
        for (unsigned count = m_attributes ? Next() % 4 : 0; count > 0; --count)
        {
            const char* name = kNames[Next() % std::size(kNames)];
            if (Next() % 2 == 0)
            {
                node.Set(name, Number());
            }
            else
            {
                node.Set(name, String().c_str());
            }
        }
    }

    std::span<const unsigned char> m_bytes;
    bool m_attributes;
};

} // namespace vorn::test
