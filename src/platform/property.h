// A value of a control whose assignment the control hears of.
#pragma once

#include <string>
#include <utility>

namespace gloamtide {

// What owns properties, and through them hears of every assignment.
class PropertyOwner {
public:
    PropertyOwner() = default;
    PropertyOwner(const PropertyOwner&) = delete;
    PropertyOwner& operator=(const PropertyOwner&) = delete;
    virtual ~PropertyOwner() = default;

    // Which: the property, told by its address. Differs: whether its value is another one than before.
    virtual void PropertyAssigned(const void* Which, bool Differs) = 0;
};

template <class T>
class Property {
public:
    explicit Property(PropertyOwner& TheOwner, T Initial = T{}) : Owner(TheOwner), Value(std::move(Initial)) {}
    Property(const Property&) = delete;

    Property& operator=(T NewValue) {
        const bool Differs = !(Value == NewValue);
        Value = std::move(NewValue);
        Owner.PropertyAssigned(this, Differs);
        return *this;
    }
    Property& operator=(const Property& Other) { return *this = Other.Value; }

    operator const T&() const { return Value; }
    const T& Get() const { return Value; }

    friend bool operator==(const Property& Left, const T& Right) { return Left.Value == Right; }

private:
    PropertyOwner& Owner;
    T Value;
};

}  // namespace gloamtide
