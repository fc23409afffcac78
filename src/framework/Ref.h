#pragma once
// A shared handle that can be nil. Using a nil one raises NilObjectException instead of crashing,
// as the logic's objects do.

#include <memory>

#include "framework/Exceptions.h"

namespace fw {

template <class T>
class Ref {
public:
    Ref() = default;
    Ref(std::nullptr_t) {}
    explicit Ref(std::shared_ptr<T> object) : object_(std::move(object)) {}
    template <class U>
    Ref(const Ref<U>& other) : object_(other.Shared()) {}

    bool IsNil() const { return !object_; }
    explicit operator bool() const { return static_cast<bool>(object_); }

    T* operator->() const { return &Get(); }
    T& operator*() const { return Get(); }
    T& Get() const {
        if (!object_) throw NilObjectException("nil object");
        return *object_;
    }
    const std::shared_ptr<T>& Shared() const { return object_; }

private:
    std::shared_ptr<T> object_;
};

template <class T, class... Args>
Ref<T> MakeRef(Args&&... args) {
    return Ref<T>(std::make_shared<T>(std::forward<Args>(args)...));
}

}  // namespace fw
