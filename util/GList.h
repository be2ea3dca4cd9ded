// util/GList.h
#pragma once

/// Ordered list of untyped item pointers with a built-in iteration cursor.
/// Owns its nodes, never its items: whoever puts an item in decides when it is destroyed.
/// Iteration runs from the front (pushed first) to the back (pushed last). Running out of memory
/// in `push` or `insert` writes a line to the standard error stream and ends the process with 1.
class GList {
public:
    GList() = default;
    ~GList();
    GList(const GList&) = delete;
    GList& operator=(const GList&) = delete;

    /// Appends `item` at the back. Into an empty list it also becomes what `next` returns.
    void push(void* item);
    /// Puts `item` directly before `reference`, which must be in the list, and moves the cursor
    /// to it. A null `reference` means `push`.
    void insert(void* reference, void* item);
    /// Takes the item at the back out and returns it; null when empty.
    void* pop();
    /// Sets the cursor to the front. Returns this list.
    GList* reset();
    /// The cursor's item, or null at the end; the cursor moves on.
    void* next();
    /// Takes the item last returned by `next` out; nothing when there is none.
    void remove();
    /// Moves the item last returned by `next` one place towards the front; the item that it
    /// overtook is what `next` returns then, so that a pass can compare again.
    void moveUp();
    /// Exchanges the cursor's node with the one before it; the cursor goes to the overtaken one.
    void swapUp();
    /// The number of items.
    int count() const;
    bool isEmpty() const { return back_ == nullptr; }

    struct ListNode;

    /// A place in the list of its own, for walks that must not move the built-in cursor.
    /// Valid until the node under it is removed.
    class Walk {
    public:
        explicit Walk(const GList& list);
        /// The next item from the front on, or null at the end.
        void* next();

    private:
        ListNode* node_;
    };

private:
    friend class Walk;
    ListNode* front() const { return front_; }
    void unlink(ListNode* node);

    ListNode* front_ = nullptr;
    ListNode* back_ = nullptr;
    ListNode* cursor_ = nullptr;
    ListNode* current_ = nullptr;
    int count_ = 0;
};

/// A `GList` of `T`: the same operations with the item's type.
template <typename T>
class TypedList : public GList {
public:
    void push(T* item) { GList::push(item); }
    void insert(T* reference, T* item) { GList::insert(reference, item); }
    T* pop() { return static_cast<T*>(GList::pop()); }
    T* next() { return static_cast<T*>(GList::next()); }

    /// Standard iteration over the items, independent of the built-in cursor. Removing the item
    /// under an iterator ends its validity; removing others does not.
    class iterator {
    public:
        explicit iterator(const GList& list)
            : walk_(list)
            , item_(static_cast<T*>(walk_.next()))
        {
        }
        iterator()
            : walk_(GList())
        {
        }
        T* operator*() const { return item_; }
        iterator& operator++()
        {
            item_ = static_cast<T*>(walk_.next());
            return *this;
        }
        bool operator==(const iterator& other) const { return item_ == other.item_; }

    private:
        GList::Walk walk_;
        T* item_ = nullptr;
    };
    iterator begin() const { return iterator(*this); }
    iterator end() const { return iterator(); }
};
