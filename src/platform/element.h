// What the records of the program's windows have in common: observers and events.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include "platform/property.h"

namespace gloamtide {

class Element;

// Hears what happens to elements; a host has one for each element that it shows.
class ElementObserver {
public:
    virtual ~ElementObserver() = default;
    virtual void ElementChanged(Element& Which) = 0;
    // Device pixels Left to Right, Top to Bottom (both ends included) of a picture were drawn on.
    virtual void PictureDrawn(int /*Left*/, int /*Top*/, int /*Right*/, int /*Bottom*/) {}
};

// Something that the user does; the program sets the handler, the host calls it. Without a handler nothing happens.
class Event {
public:
    Event& operator=(std::function<void()> NewHandler) {
        Handler = std::move(NewHandler);
        return *this;
    }
    explicit operator bool() const { return static_cast<bool>(Handler); }  // whether anything would happen
    void operator()() const {
        if (Handler) Handler();
    }

private:
    std::function<void()> Handler;
};

// What all kinds have: a name, a place in the tree of a form, and an observer.
class Element : public PropertyOwner {
public:
    const std::string Name;
    ElementObserver* Observer = nullptr;

    explicit Element(std::string_view TheName) : Name(TheName) {}
    void PropertyAssigned(const void* Which, bool Differs) override;
};

}  // namespace gloamtide
