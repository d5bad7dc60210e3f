/// Failures of the library as standard exceptions, for programs whose handlers know those only.
///
///     try {
///         korva::translated([&] { deserializer.parse(stream, *call, &reply); });
///     } catch (const std::exception& error) {
///         log(error.what());
///     }
#pragma once

#include <korva/KORVAExport.h>
#include <zel/ZELSmartPointer.h>
#include <zel/ZELThrowable.h>

#include <exception>
#include <type_traits>
#include <utility>

namespace korva {
class HeldThrowable;
}

/// A ZELThrowable, of whatever class, as a std::exception that holds it. Copies share what they
/// hold, which never changes, and so can be made and read in any thread.
class KORVA_EXPORT KORVA_StdException : public std::exception {
public:
    /// Holds a copy of `original`.
    /// @throws std::bad_alloc no memory is left
    explicit KORVA_StdException(const ZELThrowable& original);
    KORVA_StdException(const KORVA_StdException& other) noexcept;
    KORVA_StdException& operator=(const KORVA_StdException& other) noexcept;
    ~KORVA_StdException() override;

    /// All that the original can tell: ZELThrowable::toString().
    const char* what() const noexcept override;

    /// The original; lives as long as this or a copy of this.
    const ZELThrowable& original() const noexcept;

    /// The original as an `X`, such as KORVASOAPFaultException; null if it is none.
    template <class X>
    const X* originalAs() const noexcept {
        return dynamic_cast<const X*>(&original());
    }

    /// Throws a copy of the original, as its class.
    [[noreturn]] void raiseOriginal(ZELFileLocation location) const;

private:
    ZELSmartPointer<korva::HeldThrowable> m_held;
};

namespace korva {

/// Gives what `function` gives. A ZELThrowable that leaves it becomes a KORVA_StdException, or
/// std::bad_alloc where no memory is left to hold it; all other exceptions pass.
template <class Function>
std::invoke_result_t<Function> translated(Function&& function) {
    try {
        return std::forward<Function>(function)();
    } catch (const ZELThrowable& error) {
        throw KORVA_StdException(error);
    }
}

}  // namespace korva
