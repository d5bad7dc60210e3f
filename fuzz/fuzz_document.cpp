// Documents of one object.
#include "fuzz/Target.h"
#include "fuzz/Wire.h"

#include <korva/KORVASchemaTypesFactory.h>

void korva::fuzz::attack(std::string_view input) {
    const Registry registry = makeRegistry();
    const KORVASchemaTypeI* const object = readDocument(input, registry);
    if (object == nullptr) return;
    std::string document = written(*object);
    const KORVASchemaTypeI& copy = mustTake(
        [&]() -> KORVASchemaTypeI& {
            return KORVASchemaTypesFactory::getInstance().createCopy(*object, *registry);
        },
        "an object is copied");
    requireSame(written(copy), document, "a copy is written as the object is");

    // The root can't be an array of a simple type: nothing names such an array.
    if (KORVASchemaTypesFactory::isArrayType(object->getObjectType())) return;
    const auto readAndWrite = [&] {
        const KORVASchemaTypeI* const again = readDocument(document, registry);
        require(again != nullptr, "an object that was written is known");
        return written(*again);
    };
    // An array that was missing comes back empty; from then on nothing changes.
    document = mustTake(readAndWrite, "an object that was written is read");
    requireSame(readAndWrite(), document, "an object is written as it is read");
}
