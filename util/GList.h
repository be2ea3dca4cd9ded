// util/GList.h
#pragma once

#include <cstddef>
#include <iterator>

/// Ordered list of untyped item pointers with a built-in iteration cursor.
/// Owns its nodes, never its items: whoever puts an item in decides when it is destroyed.
/// Iteration runs from the front (pushed first) to the back (pushed last). Running out of memory
/// while adding writes a line to the standard error stream and ends the process with 1.
/// `push`, `pop`, `count`, `next`, `remove` and `insertAt` cost the same however long the list is.
class GList {
public:
    /// One per item, alive until its item is taken out.
    struct ListNode {
        void* item;      ///< never examined by the list
        ListNode* older; ///< towards the front; null at the front
        ListNode* newer; ///< towards the back; null at the back
    };

    GList() = default;
    ~GList();
    GList(const GList&) = delete;
    GList& operator=(const GList&) = delete;

    /// Appends `item` at the back. Into an empty list it also becomes what `next` returns.
    void push(void* item);
    /// Puts `item` directly before `reference`, which must be in the list (the one nearest the
    /// back when it is in it several times), and moves the cursor to it. A null `reference` means
    /// `push`, and so does one that is not in the list. Walks from the back to find the reference:
    /// whoever stands on the node already uses `insertAt`.
    void insert(void* reference, void* item);
    /// As `insert`, directly before the node `place` of this list; null means `push`.
    void insertAt(ListNode* place, void* item);
    /// Takes the item at the back out and returns it; null when empty. What `next` would return,
    /// or returned last, is forgotten when it is that item.
    void* pop();
    /// Sets the cursor to the front. Returns this list.
    GList* reset();
    /// The cursor's item, or null at the end; the cursor moves on.
    void* next();
    /// Takes the item last returned by `next` out; nothing when there is none. The cursor stays,
    /// except on that very item (after `reset`): it moves on to the newer neighbour.
    void remove();
    /// Takes the item of the node `place` of this list out. A cursor on it moves on.
    void removeAt(ListNode* place);
    /// Moves the item last returned by `next` one place towards the front; the item that it
    /// overtook is what `next` returns then, so that a pass can compare again. At the front it
    /// stays and `next` returns it again. Meant right after `next`: after `remove` or `insert` it
    /// is the cursor's older neighbour that moves.
    void moveUp();
    /// Exchanges the cursor's node with the one before it; the cursor goes to the overtaken one.
    /// Nothing when either is missing.
    void swapUp();
    /// The number of items.
    int count() const { return count_; }
    bool isEmpty() const { return back_ == nullptr; }
    /// Moves on with every operation that changed which items are in the list or their order: an
    /// index kept beside the list is stale when the number is another than when it was made.
    unsigned long revision() const { return revision_; }

    enum class Order { FrontToBack, BackToFront };

    /// A place in the list of its own, for walks that must not move the built-in cursor. The item
    /// last returned may be taken out while walking; the one that comes next may not.
    class Walk {
    public:
        explicit Walk(const GList& list, Order order = Order::FrontToBack)
            : ahead_(order == Order::FrontToBack ? list.front_ : list.back_)
            , order_(order)
        {
        }
        /// The next item in the walk's order, or null at the end.
        void* next();
        /// The node of the item last returned, for `insertAt`; null before the first and at the
        /// end.
        ListNode* node() const { return at_; }

    private:
        ListNode* at_ = nullptr;
        ListNode* ahead_;
        Order order_;
    };

protected:
    ListNode* front() const { return front_; }
    ListNode* back() const { return back_; }

private:
    void link(ListNode* node);
    void unlink(ListNode* node);

    ListNode* front_ = nullptr;
    ListNode* back_ = nullptr;
    ListNode* cursor_ = nullptr;
    ListNode* current_ = nullptr;
    int count_ = 0;
    unsigned long revision_ = 0;
};

/// A `GList` of `T`: the same operations with the item's type.
template <typename T> class TypedList : public GList {
public:
    void push(T* item) { GList::push(item); }
    void insert(T* reference, T* item) { GList::insert(reference, item); }
    void insertAt(ListNode* place, T* item) { GList::insertAt(place, item); }
    T* pop() { return static_cast<T*>(GList::pop()); }
    TypedList* reset()
    {
        GList::reset();
        return this;
    }
    T* next() { return static_cast<T*>(GList::next()); }

    class Walk : public GList::Walk {
    public:
        explicit Walk(const TypedList& list, Order order = Order::FrontToBack)
            : GList::Walk(list, order)
        {
        }
        T* next() { return static_cast<T*>(GList::Walk::next()); }
    };

    /// Standard iteration over the items, independent of the built-in cursor. Removing the item
    /// under an iterator ends its validity; removing others does not.
    class iterator {
    public:
        using iterator_concept = std::forward_iterator_tag;
        using iterator_category = std::input_iterator_tag; // * gives the pointer itself
        using value_type = T*;
        using difference_type = std::ptrdiff_t;
        using pointer = void;
        using reference = T*;

        iterator() = default;
        explicit iterator(ListNode* node)
            : node_(node)
        {
        }
        T* operator*() const { return static_cast<T*>(node_->item); }
        iterator& operator++()
        {
            node_ = node_->newer;
            return *this;
        }
        iterator operator++(int)
        {
            const iterator before = *this;
            node_ = node_->newer;
            return before;
        }
        bool operator==(const iterator& other) const = default;
        /// For `insertAt`; null at the end.
        ListNode* node() const { return node_; }

    private:
        ListNode* node_ = nullptr;
    };
    iterator begin() const { return iterator(front()); }
    iterator end() const { return iterator(); }
};
