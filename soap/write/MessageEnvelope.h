/// How the envelope of a message is put together.
#pragma once

#include "soap/write/EnvelopeFrame.h"
#include "soap/write/ObjectWriter.h"

#include <zel/ZELFrame.h>

#include <string>
#include <string_view>

namespace korva {

struct EnvelopeSettings : WriteSettings {
    bool writeXmlDeclaration = true;
};

/// The element around the parameters.
class OperationElement {
public:
    /// @param name of the operation; null or empty: there is no such element
    /// @param suffix what its element's name has behind that
    /// @param pOperationNamespace looked at only if there is an operation
    OperationElement(const char* name, std::string_view suffix, const char* pOperationNamespace);

    /// @throws ZELAssertError there is no namespace
    /// @throws KORVAException 0xEA4F0004: a character cannot be written
    void writeStart(BRIMOutputStream& stream, bool replaceInvalidText) const;
    void writeEnd(BRIMOutputStream& stream, bool replaceInvalidText) const;

    /// Of the elements inside, for ObjectWriter.
    std::string_view path() const { return m_path; }

private:
    bool exists() const { return !m_path.empty(); }
    void write(std::string_view text, BRIMOutputStream& stream, bool replaceInvalidText) const;

    std::string m_path;  ///< a slash and the name
    const char* m_namespace;
};

/// Writes an envelope.
/// @param writeHeader writes the header's entries by the ObjectWriter that it is given
/// @param writeParameters the same for the parameters
template <class WriteHeader, class WriteParameters>
void writeEnvelope(BRIMOutputStream& stream, const EnvelopeSettings& settings,
                   const OperationElement& operation, WriteHeader writeHeader,
                   WriteParameters writeParameters) {
    ZEL_TRY {
        EnvelopeFrame frame(stream, true);
        ObjectWriter writer(stream, settings);
        frame.start(settings.writeXmlDeclaration);
        writeHeader(writer);
        frame.startBody();
        operation.writeStart(stream, settings.replaceInvalidText);
        writer.setParent(operation.path());
        writeParameters(writer);
        operation.writeEnd(stream, settings.replaceInvalidText);
        frame.end();
    }
    ZEL_CATCH("KORVASOAPSerializer::serializeEnvelope()");
}

/// Writes one entry of the header: null is left out unless null elements are written.
inline void writeHeaderEntry(ObjectWriter& writer, const void* object, ObjectType type,
                             const ElementName& name) {
    writer.write(object, type, name, EnvelopeFrame::headerIndent, false, false);
}

/// Writes one parameter: null is written as such.
inline void writeParameter(ObjectWriter& writer, const void* object, ObjectType type,
                           const ElementName& name) {
    constexpr int indent = 2;
    writer.write(object, type, name, indent, false, true);
}

}  // namespace korva
