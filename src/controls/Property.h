#pragma once
// Properties of controls and forms that read and assign like plain fields
// (`lbl.Caption = "x"; long i = Combo.ListIndex;`) and tell their owner of each
// change, so that the owner can raise its events and tell its view.
//
// Property<T> stores its value.  Accessor<T> computes it through a getter and a
// setter: the properties of a grid's current cell, a list's selected index.

#include <cmath>
#include <compare>
#include <concepts>
#include <functional>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>

namespace orbidex {

/// Anything whose properties report their changes: a control, a form, an item.
class PropertyOwner {
public:
    virtual ~PropertyOwner() = default;
    /// Called after the property at `property` (the member's address) took a new value.
    virtual void PropertyChanged(const void* property) = 0;
};

/// A value for a property of type T: a fraction given to a whole-number property is
/// rounded half to even, as assigning to a whole number does in the program's
/// original language.
template <typename T, typename U>
T ConvertForProperty(const U& value) {
    if constexpr (std::integral<T> && std::floating_point<U>)
        return static_cast<T>(std::nearbyint(value));
    else
        return T(value);
}

/// The operations shared by Property and Accessor.  `Derived` provides
/// `const T& get() const` and `void set(const T&)`.
template <typename Derived, typename T>
class PropertyBase {
public:
    using value_type = T;

    operator const T&() const { return self().get(); }
    operator std::string_view() const
        requires std::same_as<T, std::string>
    {
        return self().get();
    }
    const T& operator()() const { return self().get(); }

    template <typename U>
    Derived& operator+=(const U& other) {
        T value = self().get();
        value += other;
        self().set(value);
        return mutableSelf();
    }
    template <typename U>
    Derived& operator-=(const U& other) {
        T value = self().get();
        value -= other;
        self().set(value);
        return mutableSelf();
    }
    Derived& operator++()
        requires std::integral<T>
    {
        self().set(self().get() + 1);
        return mutableSelf();
    }
    Derived& operator--()
        requires std::integral<T>
    {
        self().set(self().get() - 1);
        return mutableSelf();
    }
    T operator++(int)
        requires std::integral<T>
    {
        T old = self().get();
        self().set(old + 1);
        return old;
    }
    T operator--(int)
        requires std::integral<T>
    {
        T old = self().get();
        self().set(old - 1);
        return old;
    }

private:
    const Derived& self() const { return static_cast<const Derived&>(*this); }
    Derived& self() { return static_cast<Derived&>(*this); }
    Derived& mutableSelf() { return static_cast<Derived&>(*this); }
};

/// A stored property.  Assigning a different value tells the owner.
template <typename T>
class Property : public PropertyBase<Property<T>, T> {
public:
    explicit Property(PropertyOwner* owner, T initial = T{}) : owner_(owner), value_(std::move(initial)) {}
    Property(const Property&) = delete;

    Property& operator=(const T& value) {
        set(value);
        return *this;
    }
    Property& operator=(const Property& other) {
        set(other.get());
        return *this;
    }
    template <typename U>
        requires(!std::same_as<std::remove_cvref_t<U>, T> && std::constructible_from<T, const U&> &&
                 !std::derived_from<std::remove_cvref_t<U>, PropertyBase<std::remove_cvref_t<U>, T>>)
    Property& operator=(const U& value) {
        set(ConvertForProperty<T>(value));
        return *this;
    }

    const T& get() const { return value_; }
    void set(const T& value) {
        if (value_ == value) return;
        value_ = value;
        if (owner_ != nullptr) owner_->PropertyChanged(this);
    }
    /// Sets the value without telling the owner (the owner's own bookkeeping).
    void setQuietly(const T& value) { value_ = value; }

private:
    PropertyOwner* owner_;
    T value_;
};

/// A computed property: reading calls the getter, assigning the setter.
template <typename T>
class Accessor : public PropertyBase<Accessor<T>, T> {
public:
    Accessor(std::function<T()> getter, std::function<void(const T&)> setter)
        : getter_(std::move(getter)), setter_(std::move(setter)) {}
    Accessor(const Accessor&) = delete;

    Accessor& operator=(const T& value) {
        set(value);
        return *this;
    }
    Accessor& operator=(const Accessor& other) {
        set(other.get());
        return *this;
    }
    template <typename U>
        requires(!std::same_as<std::remove_cvref_t<U>, T> && std::constructible_from<T, const U&> &&
                 !std::derived_from<std::remove_cvref_t<U>, PropertyBase<std::remove_cvref_t<U>, T>>)
    Accessor& operator=(const U& value) {
        set(ConvertForProperty<T>(value));
        return *this;
    }

    /// The value read now; the reference stays valid until the next read.
    const T& get() const {
        cache_ = getter_();
        return cache_;
    }
    void set(const T& value) { setter_(value); }

private:
    std::function<T()> getter_;
    std::function<void(const T&)> setter_;
    mutable T cache_{};
};

template <typename P>
concept PropertyLike = requires { typename P::value_type; } &&
                       std::derived_from<P, PropertyBase<P, typename P::value_type>>;

// Comparisons with plain values and between properties.
template <PropertyLike P, typename U>
    requires(!PropertyLike<U>) && requires(const typename P::value_type& a, const U& b) { a == b; }
bool operator==(const P& p, const U& u) {
    return p.get() == u;
}
template <PropertyLike P, PropertyLike Q>
bool operator==(const P& p, const Q& q) {
    return p.get() == q.get();
}
template <PropertyLike P, typename U>
    requires(!PropertyLike<U>) && requires(const typename P::value_type& a, const U& b) { a <=> b; }
auto operator<=>(const P& p, const U& u) {
    return p.get() <=> u;
}
template <PropertyLike P, PropertyLike Q>
auto operator<=>(const P& p, const Q& q) {
    return p.get() <=> q.get();
}

// Text properties join with texts as std::string does.
template <typename P>
concept TextProperty = PropertyLike<P> && std::same_as<typename P::value_type, std::string>;

template <TextProperty P, typename U>
    requires(!PropertyLike<U>) && requires(const std::string& a, const U& b) { a + b; }
std::string operator+(const P& p, const U& u) {
    return p.get() + u;
}
template <TextProperty P, typename U>
    requires(!PropertyLike<U>) && requires(const U& a, const std::string& b) { a + b; }
std::string operator+(const U& u, const P& p) {
    return u + p.get();
}
template <TextProperty P, TextProperty Q>
std::string operator+(const P& p, const Q& q) {
    return p.get() + q.get();
}

template <PropertyLike P>
std::ostream& operator<<(std::ostream& out, const P& p) {
    return out << p.get();
}

}  // namespace orbidex
