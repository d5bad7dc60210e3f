// Documents of one object.
#include "fuzz/Target.h"
#include "fuzz/Wire.h"

#include <korva/KORVASchemaTypesFactory.h>

void korva::fuzz::attack(std::string_view input) {
    const Registry registry = makeRegistry();
    const KORVASchemaTypeI* const object = readDocument(input, registry);
    if (object == nullptr) return;
    const std::string first = written(*object);
    const KORVASchemaTypeI* const again = readDocument(first, registry);
    // The root can't be an array of a simple type: nothing names such an array.
    if (again != nullptr)
        requireSame(written(*again), first, "an object is written as it is read");
    else
        require(KORVASchemaTypesFactory::isArrayType(object->getObjectType()),
                "an object that was written is read");
    const KORVASchemaTypeI& copy =
        KORVASchemaTypesFactory::getInstance().createCopy(*object, *registry);
    requireSame(written(copy), first, "a copy is written as the object is");
}
