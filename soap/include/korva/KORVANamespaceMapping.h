/// The namespace prefixes in scope at one place of a document.
#pragma once

#include <korva/KORVAExport.h>

#include <cstddef>
#include <vector>

/// The prefix declarations that are open while a document is read, newest last. Texts of attributes
/// that hold qualified names are resolved with it. Belongs to one parse.
class KORVA_EXPORT KORVANamespaceMapping {
public:
    KORVANamespaceMapping();
    /// Frees the texts that it took.
    virtual ~KORVANamespaceMapping();
    KORVANamespaceMapping(const KORVANamespaceMapping&) = delete;
    KORVANamespaceMapping& operator=(const KORVANamespaceMapping&) = delete;

    /// Opens a declaration. The mapping takes both texts, which must come from `new char[]`, and
    /// clears the caller's pointers. A null `uri` is kept as null.
    /// @throws ZELOutOfMemoryError no memory is left; the texts stay the caller's
    void add(char*& prefix, char*& uri);

    /// The same for texts that stay the caller's and live until the declaration is closed.
    /// @throws ZELOutOfMemoryError no memory is left
    void addBorrowed(const char* prefix, const char* uri);

    /// The URI of the newest declaration of `prefix`; null if there is none, or if its URI is null.
    /// Lives until that declaration is removed.
    /// @throws ZELAssertError `prefix` is null
    const char* getNamespace(const char* prefix) const;

    /// Closes the newest declaration of `prefix`; does nothing if there is none.
    void remove(const char* prefix);

    /// The prefix and the URI of an open declaration, counted from 0, the outermost.
    const char* getPrefixAt(std::size_t position) const { return m_declarations[position].prefix; }
    const char* getNamespaceAt(std::size_t position) const { return m_declarations[position].uri; }

    /// The number of open declarations.
    std::size_t size() const { return m_declarations.size(); }

    /// A number that changes with every declaration that is opened or closed: what was resolved
    /// under the same number is still valid.
    std::size_t revision() const { return m_revision; }

private:
    struct Declaration {
        const char* prefix;
        const char* uri;
        bool isOwned;

        void free() const;
    };

    /// The newest declaration of `prefix`, or null.
    const Declaration* find(const char* prefix) const;

    std::vector<Declaration> m_declarations;
    std::size_t m_revision;
};
