#include "korva/KORVANamespaceMapping.h"

#include <zel/ZELAssert.h>
#include <zel/ZELFrame.h>

#include <cstring>

KORVANamespaceMapping::KORVANamespaceMapping() : m_revision(0) {}

KORVANamespaceMapping::~KORVANamespaceMapping() {
    for (const Declaration& declaration : m_declarations)
        declaration.free();
}

void KORVANamespaceMapping::Declaration::free() const {
    if (!isOwned) return;
    delete[] prefix;
    delete[] uri;
}

void KORVANamespaceMapping::add(char*& prefix, char*& uri) {
    ZEL_TRY {
        m_declarations.push_back({prefix, uri, true});
        prefix = nullptr;
        uri = nullptr;
        ++m_revision;
        return;
    }
    ZEL_CATCH("KORVANamespaceMapping::add");
}

void KORVANamespaceMapping::addBorrowed(const char* prefix, const char* uri) {
    ZEL_TRY {
        m_declarations.push_back({prefix, uri, false});
        ++m_revision;
        return;
    }
    ZEL_CATCH("KORVANamespaceMapping::add");
}

const KORVANamespaceMapping::Declaration* KORVANamespaceMapping::find(const char* prefix) const {
    for (auto declaration = m_declarations.rbegin(); declaration != m_declarations.rend();
         ++declaration)
        if (std::strcmp(declaration->prefix, prefix) == 0) return &*declaration;
    return nullptr;
}

const char* KORVANamespaceMapping::getNamespace(const char* prefix) const {
    ZEL_ASSERT(prefix);
    const Declaration* const declaration = find(prefix);
    return declaration != nullptr ? declaration->uri : nullptr;
}

void KORVANamespaceMapping::remove(const char* prefix) {
    const Declaration* const declaration = find(prefix);
    if (declaration == nullptr) return;
    declaration->free();
    m_declarations.erase(m_declarations.begin() + (declaration - m_declarations.data()));
    ++m_revision;
}
