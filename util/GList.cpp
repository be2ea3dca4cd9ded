// util/GList.cpp
#include "util/GList.h"

#include <cstdio>
#include <cstdlib>
#include <new>

namespace {

GList::ListNode* newNode(
    void* item, GList::ListNode* older, GList::ListNode* newer, const char* outOfMemory)
{
    auto* node = new (std::nothrow) GList::ListNode{item, older, newer};
    if (!node) {
        std::fputs(outOfMemory, stderr);
        std::exit(1);
    }
    return node;
}

} // namespace

GList::~GList()
{
    while (back_) {
        ListNode* older = back_->older;
        delete back_;
        back_ = older;
    }
}

void GList::push(void* item)
{
    const bool wasEmpty = isEmpty();
    ListNode* node = newNode(item, back_, nullptr, "\n Out of memory in GList::push");
    link(node);
    if (wasEmpty)
        cursor_ = node;
}

void GList::insert(void* reference, void* item)
{
    ListNode* place = reference ? back_ : nullptr;
    while (place && place->item != reference)
        place = place->older;
    insertAt(place, item);
}

void GList::insertAt(ListNode* place, void* item)
{
    if (!place) {
        push(item);
        return;
    }
    cursor_ = newNode(item, place->older, place, "\n Out of memory in GList::insert");
    link(cursor_);
}

void* GList::pop()
{
    if (!back_)
        return nullptr;
    void* item = back_->item;
    removeAt(back_);
    return item;
}

GList* GList::reset()
{
    cursor_ = front_;
    return this;
}

void* GList::next()
{
    if (!cursor_)
        return nullptr;
    current_ = cursor_;
    cursor_ = cursor_->newer;
    return current_->item;
}

void GList::remove()
{
    if (current_)
        removeAt(current_);
}

void GList::removeAt(ListNode* place)
{
    if (current_ == place)
        current_ = nullptr;
    unlink(place);
}

void GList::moveUp()
{
    cursor_ = cursor_ ? cursor_->older : current_;
    swapUp();
}

void GList::swapUp()
{
    if (!cursor_ || !cursor_->older)
        return;
    ListNode* risen = cursor_;
    ListNode* overtaken = risen->older;
    overtaken->newer = risen->newer;
    risen->older = overtaken->older;
    (overtaken->newer ? overtaken->newer->older : back_) = overtaken;
    (risen->older ? risen->older->newer : front_) = risen;
    risen->newer = overtaken;
    overtaken->older = risen;
    cursor_ = overtaken;
    ++revision_;
}

/// Makes the neighbours that `node` names, or the ends of the list, point at it.
void GList::link(ListNode* node)
{
    (node->older ? node->older->newer : front_) = node;
    (node->newer ? node->newer->older : back_) = node;
    ++count_;
    ++revision_;
}

/// Takes `node` out and releases it. A cursor on it moves on: left behind it would dangle.
void GList::unlink(ListNode* node)
{
    (node->older ? node->older->newer : front_) = node->newer;
    (node->newer ? node->newer->older : back_) = node->older;
    if (cursor_ == node)
        cursor_ = node->newer;
    delete node;
    --count_;
    ++revision_;
}

void* GList::Walk::next()
{
    at_ = ahead_;
    if (!at_)
        return nullptr;
    ahead_ = order_ == Order::FrontToBack ? at_->newer : at_->older;
    return at_->item;
}
