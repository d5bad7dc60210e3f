#include "Peer.h"

#include <functional>
#include <iostream>
#include <map>

namespace {

class Client {
public:
    explicit Client(const std::string& location) : m_location(location) {
        soap_init2(&m_soap, inputMode, outputMode);
        m_soap.connect_timeout = m_soap.recv_timeout = m_soap.send_timeout = 20;
    }
    ~Client() {
        soap_destroy(&m_soap);
        soap_end(&m_soap);
        soap_done(&m_soap);
    }
    Client(const Client&) = delete;
    Client& operator=(const Client&) = delete;

    void run(const std::string& name) {
        static const std::map<std::string, std::function<void(Client&)>> cases{
            {"tree", &Client::tree},
            {"texts", [](Client& client) { client.texts(anyText, "  two\nlines  "); }},
            {"empty-text", [](Client& client) { client.texts("", ""); }},
            {"nulls", [](Client& client) { client.send("", nullptr, nullptr); }},
            {"empty", [](Client& client) { client.call(path, {}, {}); }},
            {"null-items", [](Client& client) { client.omit({nullptr}, {nullptr}); }},
            {"omitted", [](Client& client) { client.omit({}, {}); }},
            {"shared", &Client::share},
            {"shared-values-by-reference",
             [](Client& client) {
                 client.writeReferences();
                 auto* const region = client.m_maker.make<bus__parameterValue>();
                 region->name = client.m_maker.text("region");
                 client.call(path, {region, region}, {});
             }},
            {"shared-by-reference",
             [](Client& client) {
                 client.writeReferences();
                 client.share();
             }},
            {"trigger", &Client::trigger},
            {"attachment", [](Client& client) { client.call(path, {}, {}); }},
            {"fault", [](Client& client) { client.call(path, {}, {}); }},
            {"refused", &Client::beRefused},
        };
        cases.at(name)(*this);
    }

private:
    static constexpr const char* path = "/content/report";

    using Values = std::vector<bus__parameterValue*>;
    using Options = std::vector<bus__option*>;

    void send(const std::string& objectPath, parameterValueArray* values, optionArray* options) {
        ems__runResponse response;
        const int error = soap_call_ems__run(&m_soap, m_location.c_str(), nullptr, objectPath,
                                             values, options, response);
        if (error != SOAP_OK) return printFault();
        Description description(&m_soap);
        description.header(m_soap.header);
        description.parameter("result", response.bus__result_);
        std::cout << description.text();
    }

    void call(const std::string& objectPath, const Values& values, const Options& options) {
        send(objectPath, m_maker.array<parameterValueArray>(values),
             m_maker.array<optionArray>(options));
    }

    void printFault() {
        soap_set_fault(&m_soap);
        std::cout << "fault: " << *soap_faultcode(&m_soap) << ": " << *soap_faultstring(&m_soap)
                  << "\n";
        // Details that no wsdl:fault declares are kept as they were written.
        if (const char** const detail = soap_faultdetail(&m_soap); detail != nullptr)
            std::cout << (*detail != nullptr ? *detail : "") << "\n";
    }

    bus__simpleParmValueItem* item(const char* use, const char* display) {
        auto* const made = m_maker.make<bus__simpleParmValueItem>();
        made->inclusive = m_maker.value(true);
        made->use = m_maker.text(use);
        made->display = m_maker.text(display);
        return made;
    }

    void tree() {
        auto* const header = m_maker.make<bus__halyardHeader>();
        header->tracking = m_maker.make<bus__tracking>();
        header->tracking->hopCount = m_maker.text("2");
        header->Warden = m_maker.make<bus__Warden>();
        header->Warden->authenticityToken = m_maker.bytes(someBytes);
        header->Warden->WardenPassport = m_maker.make<bus__WardenPassport>();
        header->Warden->WardenPassport->id = m_maker.text("MTsx");
        header->Warden->WardenPassport->isAnonymous = m_maker.value(false);
        header->Warden->roles = m_maker.texts({"Authors", "R&D"});
        m_soap.header = m_maker.make<SOAP_ENV__Header>();
        m_soap.header->bus__halyardHeader_ = header;

        auto* const range = m_maker.make<bus__boundRangeParmValueItem>();
        range->start = item("1", "one");
        range->end = item("9", "nine");
        auto* const region = m_maker.make<bus__parameterValue>();
        region->name = m_maker.text("region");
        region->value = m_maker.array<parmValueItemArray>(
            std::vector<bus__parmValueItem*>{item("EMEA", "Europe"), range});

        auto* const formats = m_maker.make<bus__runOptionStringArray>();
        formats->name = m_maker.value(bus__runOptionEnum::outputFormat);
        formats->value = m_maker.texts({"PDF", "HTML"});
        auto* const rows = m_maker.make<bus__runOptionInt>();
        rows->name = m_maker.value(bus__runOptionEnum::verticalElements);
        rows->value = m_maker.value(-5);
        call(path, {region}, {m_maker.prompt(m_maker.value(false)), formats, rows});
    }

    void texts(const std::string& objectPath, const std::string& value) {
        auto* const option = m_maker.make<bus__runOptionString>();
        option->name = m_maker.value(bus__runOptionEnum::burstKeyLimit);
        option->value = m_maker.text(value);
        call(objectPath, {}, {option});
    }

    // Sends objects without some of their fields, and these values and options behind them.
    void omit(Values values, Options options) {
        auto* const region = m_maker.make<bus__parameterValue>();
        region->name = m_maker.text("region");
        values.insert(values.begin(), region);
        options.insert(options.begin(), m_maker.prompt(nullptr));
        call(path, values, options);
    }

    // As gSOAP does without the recipe.
    void writeReferences() { soap_clr_omode(&m_soap, SOAP_XML_TREE); }

    void share() {
        auto* const option = m_maker.prompt(m_maker.value(true));
        call(path, {}, {option, option});
    }

    void trigger() {
        int result = 0;
        const int error =
            soap_call_ems__trigger(&m_soap, m_location.c_str(), nullptr, "nightly", result);
        if (error != SOAP_OK) return printFault();
        Description description(&m_soap);
        description.parameter("result", result);
        std::cout << description.text();
    }

    // A number beyond the enumeration's is written as it stands.
    void beRefused() {
        auto* const option = m_maker.prompt(nullptr);
        option->name = m_maker.value(static_cast<bus__runOptionEnum>(-1));
        call(path, {}, {option});
    }

    soap m_soap;
    std::string m_location;
    Maker m_maker;
};

}  // namespace

int callServer(const std::string& location, const std::string& caseName) {
    Client(location).run(caseName);
    return 0;
}
