#include "tests/interop/ToolkitTest.h"

namespace korva::test {

std::vector<Toolkit> toolkits() {
    std::vector<Toolkit> found;
#ifdef KORVA_TEST_ZEEP
    // It takes an empty text for no text, and a null object for one without fields. A null array,
    // which bears no xsi:nil, is an empty one to it.
    found.push_back({"zeep",
                     {KORVA_TEST_ZEEP, KORVA_TEST_ZEEP_DIR "/client.py"},
                     {KORVA_TEST_ZEEP, KORVA_TEST_ZEEP_DIR "/server.py"},
                     {{"empty-text",
                       "objectPath: null\n"
                       "parameterValues: array of 0\n"
                       "options: array of 1\n"
                       "  [1]: runOptionString\n"
                       "    name: \"burstKeyLimit\"\n"},
                      {"nulls",
                       "objectPath: null\n"
                       "parameterValues: array of 0\n"
                       "options: array of 0\n"}},
                     {{"empty-text",
                       "result: asynchReply\n"
                       "  details: array of 1\n"
                       "    [1]: asynchDetailReportOutput\n"
                       "      outputPages: array of 1\n"
                       "        [1]: \"two\"\n"
                       "  status: \"complete\"\n"},
                      {"nulls", "result: asynchReply\n"}}});
#endif
    return found;
}

}  // namespace korva::test
