#include "tests/bridges/Vocabulary.h"

namespace korva::test {

const Schema& vocabulary() {
    static const Schema& schema = *new Schema(scanSchema(KORVA_TEST_SCHEMA_DIR));
    return schema;
}

}  // namespace korva::test
