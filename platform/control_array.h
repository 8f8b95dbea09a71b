#pragma once
// A control array: elements addressed by index, as designed, plus elements
// created at run time as hidden copies of element 0. The owner's wire()
// connects each element's events with its index, whenever it is added.
#include <QString>
#include <functional>
#include <map>
#include <stdexcept>
#include <string>

namespace platform {

template <class Control>
class ControlArray {
  public:
    explicit ControlArray(std::string name) : name_(std::move(name)) {}

    Control& operator()(int index) const {
        auto it = items_.find(index);
        if (it == items_.end())
            throw std::out_of_range(name_ + "(" + std::to_string(index) + ") does not exist");
        return *it->second;
    }
    bool has(int index) const { return items_.count(index) != 0; }
    int count() const { return static_cast<int>(items_.size()); }

    // A designed element, made by the screen's layout.
    Control& add(int index, Control* control) {
        items_[index] = control;
        control->setObjectName(QString::fromStdString(name_ + "(" + std::to_string(index) + ")"));
        if (wire) wire(index, *control);
        return *control;
    }
    // A new element at run time: a hidden copy of element 0.
    Control& load(int index) { return add(index, (*this)(0).cloneHidden()); }

    template <class F>
    void forEach(F f) const {
        for (const auto& [index, control] : items_) f(index, *control);
    }

    std::function<void(int index, Control& control)> wire;

  private:
    std::string name_;
    std::map<int, Control*> items_;
};

}  // namespace platform
