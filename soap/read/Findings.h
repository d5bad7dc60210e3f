/// Tells what was found to the observer of a deserializer, and to the caller of a strict one.
#pragma once

#include "soap/read/DocumentReceiver.h"

#include <korva/KORVA_ReadingObserver.h>
#include <korva/KORVA_ReadingPolicy.h>

#include <string>
#include <string_view>
#include <vector>

namespace korva {

/// A place in a document, counted from 1; 0 where it is not known.
struct DocumentPosition {
    unsigned long long line = 0;
    unsigned long long column = 0;
};

/// "/Envelope/Body": the names of elements, but for those in the middle of a long path.
std::string pathOf(const std::vector<const char*>& names);

/// Knows where the document is.
class DocumentPlace {
public:
    DocumentPlace() = default;
    DocumentPlace(const DocumentPlace&) = delete;
    DocumentPlace& operator=(const DocumentPlace&) = delete;

    virtual DocumentPosition position() const = 0;
    /// The path of the innermost open element.
    virtual std::string path() const = 0;

protected:
    ~DocumentPlace() = default;
};

/// Where all findings of a parse go.
class Findings {
public:
    KORVA_ReadingPolicy policy;
    KORVA_ReadingObserver* observer = nullptr;
    /// Of the document, or of what is replayed from it. Null where nobody knows.
    const DocumentPlace* place = nullptr;

    /// Whether anybody wants to know.
    bool areWanted() const { return observer != nullptr || policy.refusesFindings(); }

    /// @param reason a sentence without its dot, a literal
    /// @throws KORVAException 0xEA4F0015: the policy refuses findings
    void tell(KORVA_ReadingFinding::Kind kind, const Element& element, const char* reason) const {
        if (areWanted()) tellAll(kind, element.uri, element.localName, reason);
    }
    void tell(KORVA_ReadingFinding::Kind kind, std::string_view uri, const char* name,
              const char* reason) const {
        if (areWanted()) tellAll(kind, uri, name, reason);
    }

private:
    void tellAll(KORVA_ReadingFinding::Kind kind, std::string_view uri, const char* name,
                 const char* reason) const;
};

}  // namespace korva
