// A control array: element 0 is the template, elements from 1 up are clones made at run time.
#pragma once

#include <cstddef>
#include <deque>

#include "toolkit/base/error.h"

namespace toolkit {

/// Elements are dense from 0 to UBound(). A reference to an element stays good while elements are
/// added behind it, not when it is unloaded itself.
template <typename Control>
class ControlArray {
  public:
    ControlArray() : elements_(1) {}

    [[nodiscard]] int UBound() const { return static_cast<int>(elements_.size()) - 1; }
    [[nodiscard]] bool exists(int index) const { return index >= 0 && index <= UBound(); }

    /// An index without an element is failure 340.
    [[nodiscard]] Control& operator[](int index) {
        if (!exists(index)) failNoSuchElement(index);
        return elements_[static_cast<std::size_t>(index)];
    }
    [[nodiscard]] const Control& operator[](int index) const {
        if (!exists(index)) failNoSuchElement(index);
        return elements_[static_cast<std::size_t>(index)];
    }

    /// Adds element UBound() + 1 as an unshown copy of the template and returns it. An index that
    /// exists is failure 360, one beyond the next is failure 340.
    Control& Load(int index) {
        if (exists(index)) throw RunTimeError(Failure::ObjectAlreadyLoaded);
        if (index != UBound() + 1) failNoSuchElement(index);
        Control& element = elements_.emplace_back(elements_.front());
        element.Visible = false;
        return element;
    }

    /// Removes the topmost elements until `index` is the upper bound. The template stays.
    void UnloadAbove(int index) {
        while (UBound() > index && UBound() > 0) elements_.pop_back();
    }

    [[nodiscard]] auto begin() { return elements_.begin(); }
    [[nodiscard]] auto end() { return elements_.end(); }
    [[nodiscard]] auto begin() const { return elements_.begin(); }
    [[nodiscard]] auto end() const { return elements_.end(); }

  private:
    std::deque<Control> elements_;
};

} // namespace toolkit
