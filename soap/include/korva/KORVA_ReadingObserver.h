/// Who is told of what a deserializer does not read as it stands.
#pragma once

#include <korva/KORVAExport.h>

/// One thing that was found. The texts live as long as the call that tells of it.
struct KORVA_ReadingFinding {
    enum Kind {
        eSkippedElement,  ///< passed over with all that it holds
        eFurtherElement,  ///< the same, behind the operation in the body
        eReference,       ///< an element with `href="#..."`
        eIdentity,        ///< an element with `id`, to which others may refer
        eUnknownWord,     ///< a word that an open enumeration lacks, and that is kept
        ePlainString,     ///< a string that is read as the declared type
        eForeignDetail    ///< details of a fault that are kept as text
    };

    Kind kind;
    const char* path;  ///< "/Envelope/Body/run/options"; the middle of a long one is left out
    unsigned long long line;  ///< of the end of the start tag, from 1; 0 where it is not known
    unsigned long long column;
    const char* namespaceUri;  ///< of the element; empty without one
    const char* name;          ///< of the element, without a prefix
    const char* reason;        ///< a sentence without its dot: "its class has no such field"
};

/// Is told of each finding while the input is read, in its order.
class KORVA_EXPORT KORVA_ReadingObserver {
public:
    virtual ~KORVA_ReadingObserver();

    /// What it throws ends the reading, and passes through as what a stream throws does.
    virtual void notice(const KORVA_ReadingFinding& finding) = 0;

protected:
    KORVA_ReadingObserver() = default;
    KORVA_ReadingObserver(const KORVA_ReadingObserver&) = default;
    KORVA_ReadingObserver& operator=(const KORVA_ReadingObserver&) = default;
};
