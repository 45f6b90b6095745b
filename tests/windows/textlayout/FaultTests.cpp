#include "tests/support/MemoryRefusal.h"
#include "tests/windows/textlayout/Fitted.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>

using namespace vorn::test;
using TextLayout::Alignment;
using TextLayout::Root;
using TextLayout::Split;
using TextLayout::Table;
using TextLayout::Text;

// What happens when memory runs out at each of the requests in turn.
namespace
{
constexpr int kMostRequests = 5000;

/// A tree of every kind of box, with a text that is cut.
std::unique_ptr<Root> TreeOfAll()
{
    auto* const head = new Table("rows", new Text("ENROUTE", "Arial"), new Text("one\ntwo", nullptr));
    auto* const foot = new Split("|60%", new Text("1\n2\n3\n4\n5\n6\n7\n8\n9", nullptr),
                                 new Alignment("right bottom", new Text("N", nullptr)));
    return std::make_unique<Root>(200, 80, new Split("-50%", head, foot));
}

class LayoutFaults : public testing::Test
{
protected:
    /// Runs `action` with the first request and all later ones refused, then from the second on, ..., until it needs no
    /// more; before each turn comes `prepare`. What is done must fail whenever something was refused.
    void FailsAtEveryRequest(const std::function<void()>& prepare, const std::function<bool()>& action)
    {
        for (int allowed = 0; allowed < kMostRequests; ++allowed)
        {
            prepare();
            bool succeeded = false;
            m_memory.RefuseAfter(allowed);
            EXPECT_NO_THROW(succeeded = action()) << allowed;
            const int refused = m_memory.Stop();
            ASSERT_EQ(succeeded, refused == 0) << "after " << allowed;
            if (refused == 0)
            {
                EXPECT_GE(allowed, 1) << "no memory was asked for";
                return;
            }
        }
        ADD_FAILURE() << "never enough memory";
    }

    Canvas m_canvas{200, 80};
    MemoryRefusal m_memory{"VornCommon.dll", "HostFramework.dll"};
};

TEST_F(LayoutFaults, ALayoutFailsAndNothingIsThrown)
{
    std::unique_ptr<Root> root;
    const auto build = [&]
    {
        root = TreeOfAll();
    };
    FailsAtEveryRequest(build,
                        [&]
                        {
                            return root->ComputeLayout(&m_canvas.dc);
                        });
    FailsAtEveryRequest(build,
                        [&]
                        {
                            return root->ComputeSize(&m_canvas.dc);
                        });
    FailsAtEveryRequest(build,
                        [&]
                        {
                            CSize size;
                            int fontHeight = 0;
                            return root->CalcSize(&m_canvas.dc, size, fontHeight);
                        });
}

TEST_F(LayoutFaults, AFontOrASizeIsNotHad)
{
    const Text text("text", "Arial");
    const auto nothing = [] {};
    FailsAtEveryRequest(nothing,
                        [&]
                        {
                            return std::unique_ptr<CFont>(text.CreateFont(20)) != nullptr;
                        });
    FailsAtEveryRequest(nothing,
                        [&]
                        {
                            CSize size;
                            return Text::GetTextSize(&m_canvas.dc, "one\ntwo\nthree", nullptr, 0, size);
                        });
}

TEST_F(LayoutFaults, WhatCannotBeDrawnIsLeftOutAndTheContextIsAsItWas)
{
    const std::unique_ptr<Root> root = TreeOfAll();
    ASSERT_TRUE(root->ComputeLayout(&m_canvas.dc));
    const HGDIOBJ font = ::GetCurrentObject(m_canvas.dc, OBJ_FONT);
    for (int allowed = 0;; ++allowed)
    {
        ASSERT_LT(allowed, kMostRequests);
        m_memory.RefuseAfter(allowed);
        EXPECT_NO_THROW(root->Draw(&m_canvas.dc)) << allowed;
        const int refused = m_memory.Stop();
        EXPECT_EQ(::GetCurrentObject(m_canvas.dc, OBJ_FONT), font) << allowed;
        if (refused == 0)
        {
            break;
        }
    }
    EXPECT_GT(m_canvas.Count(kBlack), 100);
}

TEST_F(LayoutFaults, ATextThatCannotBeCutStays)
{
    CString text = "a first line\na second one\na third one";
    const auto anew = [&]
    {
        text = "a first line\na second one\na third one";
    };
    const auto isWhole = [&]
    {
        return text == "a first line\na second one\na third one";
    };
    FailsAtEveryRequest(anew,
                        [&]
                        {
                            Text::RemoveLine(text, 1);
                            return !isWhole();
                        });
    EXPECT_STREQ("a first line\na second one\n...(1)", text);
    FailsAtEveryRequest(anew,
                        [&]
                        {
                            Text::ShortenLine(text);
                            return !isWhole();
                        });
    EXPECT_STREQ("a first line\na second one\na thi...", text);
}
} // namespace
