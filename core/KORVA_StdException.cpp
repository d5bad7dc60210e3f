#include "korva/KORVA_StdException.h"

#include <zel/ZELOutOfMemoryError.h>
#include <zel/ZELOwner.h>
#include <zel/ZELReferenceCount.h>
#include <zel/ZELThrow.h>

#include <new>
#include <string>

/// The text is made at once: asking the original for it would change the original.
class korva::HeldThrowable : public ZELReferenceCount {
public:
    explicit HeldThrowable(const ZELThrowable& original)
        : m_original(original.clone()), m_text(m_original->toString()) {}

    const ZELThrowable& original() const { return *m_original; }
    const char* text() const { return m_text.c_str(); }

private:
    ZELOwner<ZELThrowable> m_original;
    std::string m_text;
};

KORVA_StdException::KORVA_StdException(const ZELThrowable& original) try
    : m_held(new korva::HeldThrowable(original)) {
} catch (const ZELOutOfMemoryError&) {
    throw std::bad_alloc();
}

KORVA_StdException::KORVA_StdException(const KORVA_StdException&) noexcept = default;
KORVA_StdException& KORVA_StdException::operator=(const KORVA_StdException&) noexcept = default;
KORVA_StdException::~KORVA_StdException() = default;

const char* KORVA_StdException::what() const noexcept {
    return m_held->text();
}

const ZELThrowable& KORVA_StdException::original() const noexcept {
    return m_held->original();
}

void KORVA_StdException::raiseOriginal(ZELFileLocation location) const {
    const ZELOwner<ZELThrowable> copy(m_held->original().clone());
    zel::raise(location, *copy);
}
