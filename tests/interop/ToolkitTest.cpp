#include "tests/interop/ToolkitTest.h"

namespace korva::test {

namespace {

#ifdef KORVA_TEST_ZEEP
// It takes an empty text for no text, and a null object for one without fields. A null array, which
// bears no xsi:nil, is an empty one to it. The parts of a message stay beside it.
Toolkit zeep() {
    Toolkit zeep{"zeep",
                 {KORVA_TEST_ZEEP, KORVA_TEST_ZEEP_DIR "/client.py"},
                 {KORVA_TEST_ZEEP, KORVA_TEST_ZEEP_DIR "/server.py"},
                 "xsi:nil=\"true\"/></options>"};
    zeep.otherRequests["empty-text"] =
        "objectPath: null\n"
        "parameterValues: array of 0\n"
        "options: array of 1\n"
        "  [1]: runOptionString\n"
        "    name: \"burstKeyLimit\"\n";
    zeep.otherRequests["nulls"] =
        "objectPath: null\n"
        "parameterValues: array of 0\n"
        "options: array of 0\n";
    zeep.otherReplies["empty-text"] =
        "result: asynchReply\n"
        "  details: array of 1\n"
        "    [1]: asynchDetailReportOutput\n"
        "      outputPages: array of 1\n"
        "        [1]: \"two\"\n"
        "  status: \"complete\"\n";
    zeep.otherReplies["attachment"] =
        "result: asynchReply\n"
        "  details: array of 1\n"
        "    [1]: asynchDetailMIMEAttachment\n"
        "      dataSize: 7\n"
        "  status: \"complete\"\n"
        "part <picture>: hex 0001feff616263\n";
    zeep.otherReplies["nulls"] = "result: asynchReply\n";
    return zeep;
}
#endif

#ifdef KORVA_TEST_GSOAP
// A text parameter is never null. An array has as many items as its arrayType says; what is not
// there is null, at the end, or an empty text.
Toolkit gSoap() {
    Toolkit gSoap{"gSOAP",
                  {KORVA_TEST_GSOAP, "call"},
                  {KORVA_TEST_GSOAP, "answer"},
                  "arrayType=\"bus:option[2]\"><item xsi:type=\"bus:runOptionBoolean\"><bus:name>"
                  "prompt</bus:name></item></bus:options>"};
    gSoap.otherSent["nulls"] =
        "objectPath: \"\"\n"
        "parameterValues: null\n"
        "options: null\n";
    gSoap.otherRequests["nulls"] =
        "objectPath: \"\"\n"
        "parameterValues: array of 0\n"
        "options: array of 0\n";
    gSoap.otherRequests["null-items"] =
        "objectPath: \"/content/report\"\n"
        "parameterValues: array of 2\n"
        "  [1]: parameterValue\n"
        "    name: \"region\"\n"
        "  [2]: null\n"
        "options: array of 2\n"
        "  [1]: runOptionBoolean\n"
        "    name: \"prompt\"\n"
        "  [2]: null\n";
    gSoap.otherReplies["null-items"] =
        "result: asynchReply\n"
        "  details: array of 3\n"
        "    [1]: asynchDetailReportOutput\n"
        "      outputPages: array of 3\n"
        "        [1]: \"one\"\n"
        "        [2]: \"three\"\n"
        "        [3]: \"\"\n"
        "    [2]: asynchDetailReportStatus\n"
        "    [3]: null\n"
        "  status: \"complete\"\n";
    return gSoap;
}
#endif

}  // namespace

std::vector<Toolkit> toolkits() {
    std::vector<Toolkit> found;
#ifdef KORVA_TEST_ZEEP
    found.push_back(zeep());
#endif
#ifdef KORVA_TEST_GSOAP
    found.push_back(gSoap());
#endif
    return found;
}

}  // namespace korva::test
