#include "generator/emit/Emit.h"
#include "generator/emit/Frame.h"
#include "generator/emit/Text.h"

namespace korva::schemac::emit {

using namespace model;

namespace {

// An enumerator for each item, for the inside of an enumeration.
template <class Item>
void emitEnumerators(Files& files, const std::string& name, std::string_view source,
                     const std::vector<const Item*>& items) {
    FragmentFrame fragment(files, name, source);
    for (const Item* item : items) {
        fragment.content().print("        e$class$ = $identity$, ///< $name$\n",
                                 {{"class", item->className},
                                  {"identity", enumeratorValue(item->identity)},
                                  {"name", item->name}});
    }
}

}  // namespace

void emitIdentities(const Schema& schema, Files& files) {
    emitEnumerators(files, "KORVAObjectTypes_gen_.inc", schema.files.front(), schema.byName);
    emitEnumerators(files, "KORVAMessageTypes_gen_.inc", schema.messagesFile(),
                    schema.messagesByName);
}

}  // namespace korva::schemac::emit
