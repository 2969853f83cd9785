// The framework's exception classes. They derive from std::exception, so `catch (const std::exception&)` sees them too.
#pragma once

#include <exception>
#include <string>
#include <utility>

class Exception : public std::exception {
public:
    explicit Exception(std::string AMessage) : Message(std::move(AMessage)) {}

    const char* what() const noexcept override { return Message.c_str(); }

    // The class's own name, "EReadError"; used in reports to the user.
    virtual const char* ClassName() const noexcept { return "Exception"; }

    // UTF-8. An exception handler may extend it before it rethrows.
    std::string Message;
};

// Declares an exception class with no state of its own.
#define VCL_EXCEPTION(Class, Parent)                                                                                   \
    class Class : public Parent {                                                                                      \
    public:                                                                                                            \
        using Parent::Parent;                                                                                          \
        const char* ClassName() const noexcept override                                                                \
        {                                                                                                              \
            return #Class;                                                                                             \
        }                                                                                                              \
    }

// Ends the current operation without a message to the user.
VCL_EXCEPTION(EAbort, Exception);

VCL_EXCEPTION(EAccessViolation, Exception);
VCL_EXCEPTION(EConvertError, Exception);
VCL_EXCEPTION(EListError, Exception);
VCL_EXCEPTION(EStringListError, EListError);
VCL_EXCEPTION(EInvalidOperation, Exception);
VCL_EXCEPTION(EInvalidCast, Exception);
VCL_EXCEPTION(EComponentError, Exception);
VCL_EXCEPTION(EPropertyError, Exception);
VCL_EXCEPTION(EOSError, Exception);

VCL_EXCEPTION(EStreamError, Exception);
VCL_EXCEPTION(EFCreateError, EStreamError);
VCL_EXCEPTION(EFOpenError, EStreamError);
VCL_EXCEPTION(EFilerError, EStreamError);
VCL_EXCEPTION(EReadError, EFilerError);
VCL_EXCEPTION(EWriteError, EFilerError);
VCL_EXCEPTION(EClassNotFound, EFilerError);
VCL_EXCEPTION(EMethodNotFound, EFilerError);
VCL_EXCEPTION(EInvalidImage, EFilerError);
VCL_EXCEPTION(EResNotFound, Exception);
VCL_EXCEPTION(EParserError, Exception);

VCL_EXCEPTION(EInvalidGraphic, Exception);
VCL_EXCEPTION(EInvalidGraphicOperation, Exception);
