/// The emitters, one for each family. They decide nothing: all that they print stands in the model.
#pragma once

#include "generator/emit/Files.h"
#include "generator/model/Schema.h"

#include <string>

namespace korva::schemac::emit {

/// Everything that --out writes.
Files emitAll(const model::Schema& schema);

void emitIdentities(const model::Schema& schema, Files& files);
void emitWords(const model::Schema& schema, Files& files);
void emitTarnTypes(const model::Schema& schema, Files& files);
void emitRecords(const model::Schema& schema, Files& files);
void emitClasses(const model::Schema& schema, Files& files);
void emitArrays(const model::Schema& schema, Files& files);
void emitEnums(const model::Schema& schema, Files& files);
void emitRestrictedStrings(const model::Schema& schema, Files& files);
void emitFactory(const model::Schema& schema, Files& files);
void emitMessages(const model::Schema& schema, Files& files);
void emitMessageFactory(const model::Schema& schema, Files& files);
void emitPortTypes(const model::Schema& schema, Files& files);

/// What --docs writes: the vocabulary as Markdown.
std::string emitDocs(const model::Schema& schema);

}  // namespace korva::schemac::emit
