#include "tarn/TypeErrors.h"

#include <tarn/TARNSchemaTypesFactory.h>
#include <tarn/TARNTypeError.h>
#include <zel/ZELFrame.h>
#include <zel/ZELThrow.h>

#include <initializer_list>
#include <string>

namespace tarn {

namespace {

const char* nameOfType(ObjectType type) {
    const char* const text = TARNSchemaTypesFactory::getInstance().objectTypeToXSIType(type);
    return text != nullptr                            ? text
           : type == TARNSchemaTypeI::eCharStreamable ? "streamed text"
                                                      : "an unknown type";
}

[[noreturn]] void raise(std::initializer_list<const char*> pieces) {
    std::string text;
    ZEL_TRY {
        for (const char* const piece : pieces)
            text += piece;
    }
    ZEL_CATCH(nullptr);
    ZEL_THROW(TARNTypeError(text.c_str()));
}

}  // namespace

void childDoesNotFit(const TypeRow& type, const char* name, ObjectType declared, ObjectType given) {
    raise({"The child \"", name, "\" of ", xsiName(type), " takes ", nameOfType(declared), ", not ",
           nameOfType(given), "."});
}

void arrayCannotBeSet(const TypeRow& type, const char* name) {
    raise({"The child \"", name, "\" of ", xsiName(type),
           " is an array inside the object: get it and add to it."});
}

void cannotCreate(ObjectType type) {
    raise({"There are no objects of ", nameOfType(type), "."});
}

}  // namespace tarn
