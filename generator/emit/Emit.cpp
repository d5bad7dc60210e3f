#include "generator/emit/Emit.h"

namespace korva::schemac::emit {

Files emitAll(const model::Schema& schema) {
    Files files;
    emitIdentities(schema, files);
    emitWords(schema, files);
    emitTarnTypes(schema, files);
    emitRecords(schema, files);
    emitClasses(schema, files);
    emitArrays(schema, files);
    emitEnums(schema, files);
    emitRestrictedStrings(schema, files);
    emitFactory(schema, files);
    emitMessages(schema, files);
    emitMessageFactory(schema, files);
    emitPortTypes(schema, files);
    return files;
}

}  // namespace korva::schemac::emit
