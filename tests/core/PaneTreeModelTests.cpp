#include "tests/core/PaneTreeCases.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>

// Invented trees, measured and placed as another program says (tests/layout/model.py).
namespace
{

using namespace vorn;
using namespace vorn::test;

RECT ReadRect(std::istream& in)
{
    RECT rect{};
    in >> rect.left >> rect.top >> rect.right >> rect.bottom;
    return rect;
}

struct Expected
{
    bool isShown = false;
    int least[2]{};
    int most[2]{};
    Edges place{};
    std::string line;
};

class ModelCase
{
public:
    /// False at the end of the file.
    bool Read(std::istream& in)
    {
        std::string line;
        if (!std::getline(in, line))
        {
            return false;
        }
        std::istringstream first(line);
        std::string word;
        first >> word;
        EXPECT_EQ("area", word) << line;
        m_area = ReadRect(first);
        while (std::getline(in, line) && !line.empty())
        {
            ReadNode(line);
        }
        return true;
    }

    void Check()
    {
        RecordedMoves moves;
        EXPECT_TRUE(m_tree.Place(m_area, moves));
        for (std::size_t node = 0; node < m_tree.Count(); ++node)
        {
            CheckNode(node);
        }
        for (const RecordedMoves::Moved& moved : moves.moved)
        {
            EXPECT_EQ(m_expected[moved.node].place, moved.place) << m_expected[moved.node].line;
        }
        RecordedMoves again;
        EXPECT_TRUE(m_tree.Place(m_area, again));
        EXPECT_EQ(0U, again.moved.size());
    }

    std::size_t Nodes() const
    {
        return m_expected.size();
    }

private:
    void ReadNode(const std::string& line)
    {
        std::istringstream in(line);
        std::string word;
        in >> word;
        if (word == "end")
        {
            m_tree.ClosePane();
            return;
        }
        if (word == "item")
        {
            m_tree.Add(ReadItem(in));
        }
        else
        {
            m_tree.OpenPane(ReadPane(in));
        }
        in >> word;
        EXPECT_EQ("|", word) << line;
        Expected expected;
        in >> expected.isShown >> expected.least[0] >> expected.least[1] >> expected.most[0] >> expected.most[1];
        expected.place = EdgesOf(ReadRect(in));
        EXPECT_TRUE(static_cast<bool>(in)) << line;
        expected.line = line;
        m_expected.push_back(expected);
    }

    static PaneItemSpec ReadItem(std::istream& in)
    {
        PaneItemSpec item;
        in >> item.mode >> item.width >> item.height >> item.minimumWidth >> item.minimumHeight >> item.hasControl >>
            item.isShown >> item.keepsHeight;
        item.present = ReadRect(in);
        return item;
    }

    static PaneSpec ReadPane(std::istream& in)
    {
        PaneSpec pane;
        int frame = 0;
        in >> pane.isVertical >> pane.mode >> pane.ownSize >> pane.spacing;
        pane.borders = ReadRect(in);
        in >> frame;
        pane.frame = static_cast<PaneFrame>(frame);
        pane.insets = ReadRect(in);
        in >> pane.hasControl >> pane.isShownAlone;
        pane.present = ReadRect(in);
        return pane;
    }

    void CheckNode(std::size_t node) const
    {
        const Expected& expected = m_expected[node];
        EXPECT_EQ(expected.isShown, m_tree.IsShown(node)) << expected.line;
        for (const int axis : {0, 1})
        {
            EXPECT_EQ(expected.least[axis], m_tree.Least(node, static_cast<PaneAxis>(axis))) << expected.line;
            EXPECT_EQ(expected.most[axis], m_tree.Most(node, static_cast<PaneAxis>(axis))) << expected.line;
        }
        EXPECT_EQ(expected.place, EdgesOf(m_tree.PlaceOf(node))) << expected.line;
    }

    RECT m_area{};
    PaneTree m_tree;
    std::vector<Expected> m_expected;
};

TEST(PaneTreeModel, TreesGoWhereAnotherProgramPutsThem)
{
    std::ifstream file(VORN_LAYOUT_TREES, std::ios::binary);
    ASSERT_TRUE(file.is_open()) << VORN_LAYOUT_TREES;
    int trees = 0;
    std::size_t nodes = 0;
    for (;;)
    {
        ModelCase tree;
        if (!tree.Read(file))
        {
            break;
        }
        SCOPED_TRACE("tree " + std::to_string(trees));
        tree.Check();
        nodes += tree.Nodes();
        ++trees;
        if (testing::Test::HasFailure())
        {
            break;
        }
    }
    EXPECT_GE(trees, 400);
    EXPECT_GE(nodes, 4000U);
}

} // namespace
