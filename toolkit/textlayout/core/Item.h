#pragma once

#include "family/TarnUtil/core/TarnObject.h"
#include "frame/core/Export.h"
#include "framework/core/BaseTypes.h"
#include "framework/core/CString.h"
#include "framework/core/Geometry.h"

#include <functional>
#include <memory>
#include <utility>
#include <vector>

class CDC;

/// Boxes that fit texts into a rectangle of a device context.
///
/// A tree is built once, laid out once and drawn as often as wanted:
///
///     TextLayout::Root root(300, 80, new TextLayout::Split("-60%",
///         new TextLayout::Text("ENROUTE CHART", "Arial", FW_BOLD, 0, 40, RGB(0, 0, 128), 10),
///         new TextLayout::Alignment("right bottom", new TextLayout::Text("1:500,000\nLambert conformal", "Arial"))));
///     root.Set("x", 20);
///     if (root.ComputeLayout(&dc))
///         root.Draw(&dc);
///
/// Everything that a node knows is an attribute: a text under a name. Numbers are decimal, read from the start of the
/// text ("34px" is 34, "wide" is 0), and stop at the ends of `int`. Sizes and places are in the context's logical
/// units.
///
/// | Name                             | Meaning                                                                       |
/// |----------------------------------|-------------------------------------------------------------------------------|
/// | "maxWidth", "maxHeight"          | the space that a node may use                                                 |
/// | "width", "height"                | the size that it was given or measured to                                     |
/// | "x", "y"                         | its offset inside its parent; on the root it moves the whole tree             |
/// | "right", "bottom"                | its far edges after the layout                                                |
/// | "text"                           | of a Text; "\n" parts the lines                                               |
/// | "face", "weight"                 | font: "Arial" and 400 when missing                                            |
/// | "fontHeight"                     | the height chosen; set before the layout, the most that may be chosen         |
/// | "maxFontHeight", "minFontHeight" | bounds of the search for a height: 999 and 9 when missing                     |
/// | "spacing"                        | extra space between lines, in percent of their height                         |
/// | "color", "bgcolor"               | of the text (black when missing) and of the box behind it (none when missing) |
/// | "shadowOffset"                   | of the shadow below the text; none when missing or 0                          |
/// | "align"                          | of an Alignment                                                               |
/// | "split"                          | of a Split                                                                    |
///
/// What was measured keeps its size: for another space build another tree.
namespace TextLayout
{

/// A node: attributes and children, which lie on one another in its whole space. Children are made with `new` and
/// belong to the node.
class VORNCOMMON_API Item : public TarnObject
{
public:
    Item();
    ~Item() override;
    Item(const Item&) = delete;
    Item& operator=(const Item&) = delete;

    /// Appends a child, which then belongs to this node. Null, a node that has a parent, this node itself and its
    /// ancestors are refused.
    /// @return false when refused; the node stays the caller's.
    bool Add(Item* child);

    /// @name Attributes
    /// A null name is ignored and nowhere found; a null text is the empty one. With `inherit` an attribute that the
    /// node lacks is looked for in its ancestors, the nearest first.
    /// @{
    void Set(LPCSTR key, LPCSTR value);
    void Set(LPCSTR key, int value);
    /// @return whether it is there; if not, `value` stays as it was.
    bool Get(LPCSTR key, int& value, bool inherit = false) const;
    bool Get(LPCSTR key, CString& value, bool inherit = false) const;
    bool Has(LPCSTR key, bool inherit = false) const;
    /// The sum over the node and all its ancestors: of "x", the place on the device context.
    /// @return whether one of them has it; if not, `value` is 0.
    bool GetSum(LPCSTR key, int& value) const;
    /// Takes over an attribute that `from` itself has, under another name or the same.
    /// @return false when it has none or is null; nothing is changed then.
    bool Copy(LPCSTR key, const Item* from);
    bool Copy(LPCSTR fromKey, LPCSTR toKey, const Item* from);
    /// @}

    /// @name Layout
    /// Before a child's turn its parent hands down its space: its own "width" always, its "maxWidth" to a child
    /// without one, the same with the heights; and its own "fontHeight" to a child without one. The first child that
    /// fails ends the work.
    /// @return false on failure: a text that was given no space, a split without two children, no device context.
    /// @{
    /// Measures the tree without placing anything.
    virtual bool ComputeSize(CDC* dc);
    /// Measures and places the tree.
    virtual bool ComputeLayout(CDC* dc);
    /// Measures the tree and tells what room it takes, and the smallest font height in it (9999 without texts).
    virtual bool CalcSize(CDC* dc, CSize& size, int& fontHeight);
    /// Makes a size the node's own: stores "width", "height", "fontHeight", and "right" and "bottom" after "x", "y".
    virtual void SetSize(CSize& size, int& fontHeight);
    /// Draws the texts below, in order.
    virtual void Draw(CDC* dc);
    /// @}

protected:
    using Children = std::vector<std::unique_ptr<Item>>;
    /// Works on a child and tells its size.
    using Lay = std::function<bool(Item& child, CSize& size)>;
    static constexpr int kNoFontHeight = 9999;

    const Children& GetChildren() const;
    /// Gives a child this node's space along one direction, whatever the child had.
    void ImposeSpace(LPCSTR sizeKey, LPCSTR maxKey, Item& child) const;
    void HandDownFont(Item& child) const;
    /// The space along one direction: the node's own size there or else the most it may have.
    bool GetSpace(LPCSTR sizeKey, LPCSTR maxKey, int& space) const;
    /// The size of a child that has been measured: its own, or else what its children take.
    static bool SizeOf(Item& child, CDC* dc, CSize& size);
    /// Measures a child and lowers `smallest` to its font height.
    static bool Measure(Item& child, CDC* dc, CSize& size, int& smallest);
    /// What this node's children take, for its parent.
    CSize GetComputed() const;
    void SetComputed(CSize size);

private:
    void HandDown(Item& child) const;
    bool LayChildren(const Lay& lay);
    const CString* Find(LPCSTR key, bool inherit) const;

    Item* m_parent = nullptr;
    Children m_children;
    std::vector<std::pair<CString, CString>> m_attributes;
    CSize m_computed;
    bool m_hasComputed = false;
};

} // namespace TextLayout
