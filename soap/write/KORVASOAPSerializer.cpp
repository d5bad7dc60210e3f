#include "korva/KORVASOAPSerializer.h"

#include "soap/write/MessageEnvelope.h"
#include "soap/write/ObjectWriter.h"

#include <zel/ZELAssert.h>
#include <zel/ZELFrame.h>

#include <utility>

namespace {

using Contexts = std::vector<KORVASOAPSerializer::ObjectContext*>;

template <class Write>
void writeContexts(korva::ObjectWriter& writer, const Contexts& contexts, Write write) {
    for (const auto* const objectContext : contexts) {
        ZEL_ASSERT(objectContext);
        write(writer, objectContext->object, objectContext->type,
              {korva::ElementName::Root, objectContext->name});
    }
}

}  // namespace

KORVASOAPSerializer::ObjectContext::ObjectContext(const void* value, ObjectType valueType,
                                                  std::string qualifiedName)
    : object(value), type(valueType), name(std::move(qualifiedName)) {}

KORVASOAPSerializer::KORVASOAPSerializer()
    : m_writeNullElements(false),
      m_writeXmlDeclaration(true),
      m_writeNamespaceDeclarations(true),
      m_replaceInvalidText(false) {}

KORVASOAPSerializer::~KORVASOAPSerializer() = default;

void KORVASOAPSerializer::serialize(const void* object, ObjectType type, const char* qName,
                                    BRIMOutputStream& stream) {
    ZEL_TRY {
        korva::ObjectWriter writer(stream, {m_writeNullElements, m_replaceInvalidText});
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

void KORVASOAPSerializer::setReplaceInvalidText(bool replace) {
    m_replaceInvalidText = replace;
}

void KORVASOAPSerializer::serializeEnvelope(const Contexts& headerContexts,
                                            const Contexts& bodyContexts, const char* operationName,
                                            const char* pOperationNamespace,
                                            BRIMOutputStream& stream) {
    ZEL_TRY {
        const korva::OperationElement operation(operationName, {}, pOperationNamespace);
        korva::writeEnvelope(
            stream, {{m_writeNullElements, m_replaceInvalidText}, m_writeXmlDeclaration}, operation,
            [&](korva::ObjectWriter& writer) {
                writeContexts(writer, headerContexts, korva::writeHeaderEntry);
            },
            [&](korva::ObjectWriter& writer) {
                writeContexts(writer, bodyContexts, korva::writeParameter);
            });
    }
    ZEL_CATCH(nullptr);
}
