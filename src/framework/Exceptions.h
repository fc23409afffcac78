#pragma once
// The run-time layer's own faults. Logic lets them fly; the event boundary turns an uncaught one
// into a message that names its class, and the program goes on.

#include <stdexcept>
#include <string>

namespace fw {

class RuntimeException : public std::runtime_error {
public:
    explicit RuntimeException(const std::string& message = {}) : std::runtime_error(message) {}
    virtual const char* ClassName() const { return "RuntimeException"; }
};

class NilObjectException : public RuntimeException {
public:
    using RuntimeException::RuntimeException;
    const char* ClassName() const override { return "NilObjectException"; }
};

class OutOfBoundsException : public RuntimeException {
public:
    using RuntimeException::RuntimeException;
    const char* ClassName() const override { return "OutOfBoundsException"; }
};

class XmlException : public RuntimeException {
public:
    using RuntimeException::RuntimeException;
    const char* ClassName() const override { return "XmlException"; }
};

class IOException : public RuntimeException {
public:
    using RuntimeException::RuntimeException;
    const char* ClassName() const override { return "IOException"; }
};

// Arithmetic the script cannot carry out, such as a stack that would grow without bound.
class StackOverflowException : public RuntimeException {
public:
    using RuntimeException::RuntimeException;
    const char* ClassName() const override { return "StackOverflowException"; }
};

// More memory than a calculation may take, such as a string doubled over and over.
class OutOfMemoryException : public RuntimeException {
public:
    using RuntimeException::RuntimeException;
    const char* ClassName() const override { return "OutOfMemoryException"; }
};

}  // namespace fw
