/// A text that several holders share.
#pragma once

#include <korva/KORVAExport.h>
#include <zel/ZELReferenceCount.h>

/// A reference-counted text that is freed as an array of characters with its last holder.
class KORVA_EXPORT KORVA_RefCount_ConstChar : public ZELReferenceCount {
public:
    /// Takes the text, which must come from `new char[]` or be null.
    explicit KORVA_RefCount_ConstChar(char* text);
    explicit KORVA_RefCount_ConstChar(const char* text);
    ~KORVA_RefCount_ConstChar() override;
    KORVA_RefCount_ConstChar(const KORVA_RefCount_ConstChar&) = delete;
    KORVA_RefCount_ConstChar& operator=(const KORVA_RefCount_ConstChar&) = delete;

    const char* ptr() const { return m_text; }

private:
    const char* m_text;
};
