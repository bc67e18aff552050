// An operation of the contract, and who calls it.
#pragma once

#include <string>

namespace corvane::host {

/// Made from its name where the C function stands: the default is worked out there, and so is an
/// address in the code that called it.
struct Operation {
    Operation(const char* operationName, const void* returnAddress = __builtin_return_address(0))
        : name(operationName), calledFrom(returnAddress) {}

    const char* name;
    const void* calledFrom;
};

/// The file name of the library, or program, that holds the code at the address; empty for the
/// host's own and when it is not known.
std::string libraryAt(const void* address);

/// The same for a function: the library whose function it is.
template <class Result, class... Arguments>
std::string libraryOf(Result (*function)(Arguments...)) {
    return libraryAt(reinterpret_cast<const void*>(function));
}

/// "libFlight.so: CorUtilRedraw: what"
std::string complaint(const Operation& operation, const std::string& what);

} // namespace corvane::host
