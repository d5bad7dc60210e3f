#include "generator/emit/Emit.h"
#include "generator/emit/Printer.h"
#include "generator/emit/Text.h"

namespace korva::schemac::emit {

using namespace model;

namespace {

// An enumerator for each item, for the inside of an enumeration.
template <class Item>
std::string enumerators(std::string_view source, const std::vector<const Item*>& items) {
    Printer printer;
    printer.print("$made$\n$check$\n", {{"made", madeFrom(source)}, {"check", versionCheck}});
    for (const Item* item : items) {
        printer.print("        e$class$ = $identity$, ///< $name$\n",
                      {{"class", item->className},
                       {"identity", decimal(item->identity)},
                       {"name", item->name}});
    }
    return printer.take();
}

}  // namespace

void emitIdentities(const Schema& schema, Files& files) {
    files.add("include/korva/KORVAObjectTypes_gen_.inc",
              enumerators(schema.files.front(), schema.byName));
    files.add("include/korva/KORVAMessageTypes_gen_.inc",
              enumerators(schema.messagesFile(), schema.messagesByName));
}

}  // namespace korva::schemac::emit
