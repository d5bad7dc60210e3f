/// The schema as two validators read it that know nothing of the library.
#pragma once

#include <memory>
#include <set>
#include <string>

namespace korva::test {

/// What stands on the wire, as documents for a validator. An array names its type there, which is
/// SOAP-ENC:Array, where a validator expects the declared one or another derived from it.
///
/// All are children of one root, below which the prefixes of an envelope are declared.
/// @throws std::runtime_error the document is not well-formed
/// @{

/// The document with its arrays taken out, and their items beside it, theirs likewise.
std::string betweenArrays(const std::string& document);

/// The document with its arrays in place, of the types that the schema declares: `rootType`, such
/// as "bus:scheduleArray", where the root is one.
std::string withDeclaredArrays(const std::string& document, const std::string& rootType);

/// @}

/// The document without the elements that are nil and of one of these types, such as
/// "bus:baseClass".
std::string withoutNils(const std::string& document, const std::set<std::string>& types);

/// A schema in libxml2 and in Xerces-C. No validator opens a connection.
class SchemaValidators {
public:
    /// Loads the bus schema, of which `path` is the main file.
    explicit SchemaValidators(const std::string& path);
    ~SchemaValidators();

    SchemaValidators(const SchemaValidators&) = delete;
    SchemaValidators& operator=(const SchemaValidators&) = delete;

    /// What is wrong with the schema, or what it looks for elsewhere; empty as a rule.
    std::string schemaErrors() const;

    /// What is wrong with an XSD file that is loaded without those beside it.
    static std::string loadingErrors(const std::string& path);

    /// What each thinks of a document that betweenArrays() or withDeclaredArrays() made; both are
    /// empty if it is valid.
    std::string libxml2Errors(const std::string& document) const;
    std::string xercesErrors(const std::string& document) const;

private:
    class Libxml2;
    class Xerces;
    std::unique_ptr<Libxml2> m_libxml2;
    std::unique_ptr<Xerces> m_xerces;
};

}  // namespace korva::test
