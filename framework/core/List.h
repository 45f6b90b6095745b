#pragma once

/// @file
/// Doubly linked lists.
#include "framework/core/CollectionHelpers.h"
#include "framework/core/NodePool.h"
#include "framework/core/Object.h"

namespace vorn
{
/// What all lists of the framework have in common. A POSITION stays valid until its element is removed. A null
/// POSITION where one is needed, and taking from an empty list, throw a CInvalidArgException*; short memory throws a
/// CMemoryException*.
template <class TYPE, class ARG_TYPE>
class ListBase : public CObject
{
public:
    /// @param nBlockSize for how many elements memory is taken at first; later pieces are larger. A list that has been
    /// emptied by RemoveAll() holds no memory; one whose elements were removed singly keeps it for the next ones.
    explicit ListBase(INT_PTR nBlockSize = 10) : m_pool(sizeof(Node), nBlockSize)
    {
    }
    ~ListBase() override
    {
        RemoveAll();
    }

    INT_PTR GetCount() const noexcept
    {
        return m_count;
    }
    INT_PTR GetSize() const noexcept
    {
        return m_count;
    }
    BOOL IsEmpty() const noexcept
    {
        return m_count == 0 ? TRUE : FALSE;
    }

    TYPE& GetHead()
    {
        return NodeAt(GetHeadPosition())->data;
    }
    const TYPE& GetHead() const
    {
        return NodeAt(GetHeadPosition())->data;
    }
    TYPE& GetTail()
    {
        return NodeAt(GetTailPosition())->data;
    }
    const TYPE& GetTail() const
    {
        return NodeAt(GetTailPosition())->data;
    }
    TYPE RemoveHead()
    {
        return Take(GetHeadPosition());
    }
    TYPE RemoveTail()
    {
        return Take(GetTailPosition());
    }
    POSITION AddHead(ARG_TYPE newElement)
    {
        return Link(nullptr, m_head, newElement);
    }
    POSITION AddTail(ARG_TYPE newElement)
    {
        return Link(m_tail, nullptr, newElement);
    }
    /// Adds copies of another list's elements in front, in their order.
    void AddHead(ListBase* pNewList)
    {
        CheckIndex(pNewList != nullptr);
        INT_PTR left = pNewList->m_count;
        for (Node* node = pNewList->m_tail; left > 0; node = node->previous, --left)
        {
            AddHead(node->data);
        }
    }
    /// Adds copies of another list's elements at the end, in their order.
    void AddTail(ListBase* pNewList)
    {
        CheckIndex(pNewList != nullptr);
        INT_PTR left = pNewList->m_count;
        for (Node* node = pNewList->m_head; left > 0; node = node->next, --left)
        {
            AddTail(node->data);
        }
    }
    void RemoveAll()
    {
        while (m_head != nullptr)
        {
            Unlink(m_head);
        }
        m_pool.Clear();
    }

    POSITION GetHeadPosition() const noexcept
    {
        return PositionOf(m_head);
    }
    POSITION GetTailPosition() const noexcept
    {
        return PositionOf(m_tail);
    }
    /// The element at `rPosition`, which moves to the next one, or to null after the last.
    TYPE& GetNext(POSITION& rPosition)
    {
        Node* node = NodeAt(rPosition);
        rPosition = PositionOf(node->next);
        return node->data;
    }
    const TYPE& GetNext(POSITION& rPosition) const
    {
        Node* node = NodeAt(rPosition);
        rPosition = PositionOf(node->next);
        return node->data;
    }
    /// The element at `rPosition`, which moves to the one before, or to null at the first.
    TYPE& GetPrev(POSITION& rPosition)
    {
        Node* node = NodeAt(rPosition);
        rPosition = PositionOf(node->previous);
        return node->data;
    }
    const TYPE& GetPrev(POSITION& rPosition) const
    {
        Node* node = NodeAt(rPosition);
        rPosition = PositionOf(node->previous);
        return node->data;
    }
    TYPE& GetAt(POSITION position)
    {
        return NodeAt(position)->data;
    }
    const TYPE& GetAt(POSITION position) const
    {
        return NodeAt(position)->data;
    }
    void SetAt(POSITION position, ARG_TYPE newElement)
    {
        NodeAt(position)->data = newElement;
    }
    void RemoveAt(POSITION position)
    {
        Unlink(NodeAt(position));
    }

    /// Inserts before a position; null inserts at the head.
    POSITION InsertBefore(POSITION position, ARG_TYPE newElement)
    {
        Node* next = position != nullptr ? NodeAt(position) : m_head;
        return Link(next != nullptr ? next->previous : nullptr, next, newElement);
    }
    /// Inserts after a position; null inserts at the tail.
    POSITION InsertAfter(POSITION position, ARG_TYPE newElement)
    {
        Node* previous = position != nullptr ? NodeAt(position) : m_tail;
        return Link(previous, previous != nullptr ? previous->next : nullptr, newElement);
    }

    /// First element after `startAfter` (from the head for null) that equals the value, by CompareElements(); or null.
    POSITION Find(ARG_TYPE searchValue, POSITION startAfter = nullptr) const
    {
        Node* node = startAfter != nullptr ? NodeAt(startAfter)->next : m_head;
        while (node != nullptr && !CompareElements<TYPE>(&node->data, &searchValue))
        {
            node = node->next;
        }
        return PositionOf(node);
    }
    /// Position of the element with that index, counted from the head; null when there is none.
    POSITION FindIndex(INT_PTR nIndex) const
    {
        Node* node = nIndex >= 0 && nIndex < m_count ? m_head : nullptr;
        for (INT_PTR i = 0; node != nullptr && i < nIndex; ++i)
        {
            node = node->next;
        }
        return PositionOf(node);
    }

private:
    struct Node
    {
        Node(Node* before, Node* after, ARG_TYPE element) : previous(before), next(after), data(element)
        {
        }
        Node* previous;
        Node* next;
        TYPE data;
    };

    static POSITION PositionOf(Node* node) noexcept
    {
        return reinterpret_cast<POSITION>(node);
    }
    static Node* NodeAt(POSITION position)
    {
        CheckIndex(position != nullptr);
        return reinterpret_cast<Node*>(position);
    }

    /// Ends an element and gives its memory back to the list.
    struct Ender
    {
        vorn::NodePool* pool;
        void operator()(Node* node) const noexcept
        {
            std::destroy_at(node);
            pool->Give(node);
        }
    };
    using OwnedNode = std::unique_ptr<Node, Ender>;

    Node* Make(Node* previous, Node* next, ARG_TYPE element)
    {
        static_assert(alignof(Node) <= 2 * sizeof(void*), "the pool aligns no further");
        void* memory = m_pool.Take();
        try
        {
            return new (memory) Node(previous, next, element);
        }
        catch (...)
        {
            m_pool.Give(memory);
            throw;
        }
    }

    POSITION Link(Node* previous, Node* next, ARG_TYPE element)
    {
        Node* node = Make(previous, next, element); // the links own the nodes
        (previous != nullptr ? previous->next : m_head) = node;
        (next != nullptr ? next->previous : m_tail) = node;
        ++m_count;
        return PositionOf(node);
    }

    OwnedNode Detach(Node* node) noexcept
    {
        (node->previous != nullptr ? node->previous->next : m_head) = node->next;
        (node->next != nullptr ? node->next->previous : m_tail) = node->previous;
        --m_count;
        return OwnedNode(node, Ender{&m_pool});
    }

    void Unlink(Node* node)
    {
        const OwnedNode ended = Detach(node);
    }

    TYPE Take(POSITION position)
    {
        const OwnedNode node = Detach(NodeAt(position));
        return std::move(node->data);
    }

    vorn::NodePool m_pool;
    Node* m_head = nullptr;
    Node* m_tail = nullptr;
    INT_PTR m_count = 0;
};
} // namespace vorn

/// A doubly linked list of any copyable type. See vorn::ListBase for its operations and errors.
template <class TYPE, class ARG_TYPE = const TYPE&>
class CList : public vorn::ListBase<TYPE, ARG_TYPE>
{
public:
    using vorn::ListBase<TYPE, ARG_TYPE>::ListBase;
};

#define VORN_DECLARE_LIST(class_name, type, argument)                                                                  \
    class HOSTFRAMEWORK_API class_name : public vorn::ListBase<type, argument>                                         \
    {                                                                                                                  \
        DECLARE_DYNCREATE(class_name)                                                                                  \
        using vorn::ListBase<type, argument>::ListBase;                                                                \
        class_name() = default;                                                                                        \
    };

/// Lists of the types that are used most. CPtrList and CObList do not own what their elements point to.
VORN_DECLARE_LIST(CPtrList, void*, void*)
VORN_DECLARE_LIST(CObList, CObject*, CObject*)
VORN_DECLARE_LIST(CStringList, CString, const CString&)
