#include "korva/KORVASOAPSerializer.h"

#include "soap/write/ObjectWriter.h"
#include "soap/write/WireTokens.h"

#include <brim/BRIMOutputStream.h>
#include <zel/ZELAssert.h>
#include <zel/ZELFrame.h>

#include <utility>

namespace {

using Contexts = std::vector<KORVASOAPSerializer::ObjectContext*>;

/// Where the elements of an envelope stand, less one.
constexpr int headerIndent = 1;
constexpr int parameterIndent = 2;

void write(BRIMOutputStream& stream, std::string_view token) {
    stream.write(token.data(), token.size());
}

void writeContexts(korva::ObjectWriter& writer, const Contexts& contexts, int indent, bool force) {
    for (const auto* const objectContext : contexts) {
        ZEL_ASSERT(objectContext);
        writer.write(objectContext->object, objectContext->type, objectContext->name.c_str(),
                     indent, false, force);
    }
}

}  // namespace

KORVASOAPSerializer::ObjectContext::ObjectContext(const void* value, ObjectType valueType,
                                                  std::string qualifiedName)
    : object(value), type(valueType), name(std::move(qualifiedName)) {}

KORVASOAPSerializer::KORVASOAPSerializer()
    : m_writeNullElements(false), m_writeXmlDeclaration(true), m_writeNamespaceDeclarations(true) {}

KORVASOAPSerializer::~KORVASOAPSerializer() = default;

void KORVASOAPSerializer::serialize(const void* object, ObjectType type, const char* qName,
                                    BRIMOutputStream& stream) {
    ZEL_TRY {
        korva::ObjectWriter writer(stream, m_writeNullElements);
        writer.write(object, type, qName, -1, m_writeNamespaceDeclarations, true);
    }
    ZEL_CATCH("KORVASOAPSerializer::serialize()");
}

void KORVASOAPSerializer::setWriteNamespaceDeclarations(bool write) {
    m_writeNamespaceDeclarations = write;
}

void KORVASOAPSerializer::setWriteXmlDeclaration(bool write) {
    m_writeXmlDeclaration = write;
}

void KORVASOAPSerializer::setWriteNullElements(bool write) {
    m_writeNullElements = write;
}

void KORVASOAPSerializer::serializeEnvelope(const Contexts& headerContexts,
                                            const Contexts& bodyContexts, const char* operationName,
                                            const char* pOperationNamespace,
                                            BRIMOutputStream& stream) {
    ZEL_TRY {
        const std::string_view operation = operationName != nullptr ? operationName : "";
        korva::ObjectWriter writer(stream, m_writeNullElements);

        if (m_writeXmlDeclaration) write(stream, korva::wire::xmlDeclaration);
        korva::wire::writeEnvelopeStart(stream);
        write(stream, korva::wire::lineFeed);

        write(stream, korva::wire::headerStart);
        writeContexts(writer, headerContexts, headerIndent, false);
        write(stream, korva::wire::headerEnd);

        write(stream, korva::wire::bodyStart);
        if (!operation.empty()) {
            ZEL_ASSERT_NAMED(pOperationNamespace, "An operation namespace must be given.");
            write(stream, korva::wire::operationStart);
            write(stream, operation);
            write(stream, korva::wire::operationNamespace);
            write(stream, pOperationNamespace);
            write(stream, korva::wire::operationStartEnd);
        }
        writeContexts(writer, bodyContexts, parameterIndent, true);
        if (!operation.empty()) {
            write(stream, korva::wire::operationEnd);
            write(stream, operation);
            write(stream, korva::wire::tagEnd);
        }
        write(stream, korva::wire::bodyEnd);
        write(stream, korva::wire::envelopeEnd);
    }
    ZEL_CATCH("KORVASOAPSerializer::serializeEnvelope()");
}
