#include "Peer.h"

#include <cstdio>

std::string Description::quoted(const std::string& text) {
    std::string out = "\"";
    for (const char c : text) {
        switch (c) {
            case '"': out += "\\\""; break;
            case '\\': out += "\\\\"; break;
            case '\n': out += "\\n"; break;
            case '\r': out += "\\r"; break;
            case '\t': out += "\\t"; break;
            default: out += c;
        }
    }
    return out + "\"";
}

void Description::show(const std::string& name, const xsd__base64Binary& value) {
    std::string digits = "hex ";
    for (int i = 0; i < value.__size; ++i) {
        char byte[3];
        std::snprintf(byte, sizeof byte, "%02x", value.__ptr[i]);
        digits += byte;
    }
    line(name, digits);
}

// xs:integer has no limits and is a text to gSOAP.
void Description::integer(const char* name, const std::string* value) {
    if (value != nullptr) line(name, *value);
}

void Description::word(const char* name, const char* value) {
    if (value != nullptr) line(name, quoted(value));
}

void Description::show(const std::string& name, const bus__halyardHeader& header) {
    below(name, "halyardHeader", [&] {
        field("Warden", header.Warden);
        field("tracking", header.tracking);
    });
}

void Description::show(const std::string& name, const bus__Warden& warden) {
    below(name, "Warden", [&] {
        field("authenticityToken", warden.authenticityToken);
        field("WardenPassport", warden.WardenPassport);
        arrayField("roles", warden.roles);
    });
}

void Description::show(const std::string& name, const bus__WardenPassport& passport) {
    below(name, "WardenPassport", [&] {
        field("id", passport.id);
        field("isAnonymous", passport.isAnonymous);
    });
}

void Description::show(const std::string& name, const bus__tracking& tracking) {
    below(name, "tracking", [&] { integer("hopCount", tracking.hopCount); });
}

void Description::show(const std::string& name, const bus__parameterValue& value) {
    below(name, "parameterValue", [&] {
        field("name", value.name);
        arrayField("value", value.value);
    });
}

void Description::show(const std::string& name, const bus__parmValueItem& item) {
    if (const auto* simple = dynamic_cast<const bus__simpleParmValueItem*>(&item)) {
        below(name, "simpleParmValueItem", [&] {
            field("inclusive", item.inclusive);
            field("display", simple->display);
            field("use", simple->use);
        });
    } else if (const auto* range = dynamic_cast<const bus__boundRangeParmValueItem*>(&item)) {
        below(name, "boundRangeParmValueItem", [&] {
            field("inclusive", item.inclusive);
            field("end", range->end);
            field("start", range->start);
        });
    } else {
        line(name, "parmValueItem");
    }
}

void Description::show(const std::string& name, const bus__option& option) {
    const auto* const run = dynamic_cast<const bus__runOption*>(&option);
    if (run == nullptr) return line(name, "option");
    const auto show = [&](const char* type, auto value) {
        below(name, type, [&] {
            if (run->name != nullptr) word("name", soap_bus__runOptionEnum2s(m_soap, *run->name));
            value();
        });
    };
    if (const auto* boolean = dynamic_cast<const bus__runOptionBoolean*>(run))
        show("runOptionBoolean", [&] { field("value", boolean->value); });
    else if (const auto* number = dynamic_cast<const bus__runOptionInt*>(run))
        show("runOptionInt", [&] { field("value", number->value); });
    else if (const auto* text = dynamic_cast<const bus__runOptionString*>(run))
        show("runOptionString", [&] { field("value", text->value); });
    else if (const auto* texts = dynamic_cast<const bus__runOptionStringArray*>(run))
        show("runOptionStringArray", [&] { arrayField("value", texts->value); });
    else
        show("runOption", [] {});
}

void Description::show(const std::string& name, const bus__stringProp& property) {
    below(name, "stringProp", [&] { field("value", property.value); });
}

void Description::show(const std::string& name, const bus__baseClass& object) {
    if (const auto* output = dynamic_cast<const bus__output*>(&object))
        below(name, "output", [&] { field("dataType", output->dataType); });
    else if (const auto* page = dynamic_cast<const bus__page*>(&object))
        below(name, "page", [&] { field("dataType", page->dataType); });
    else
        line(name, "baseClass");
}

void Description::show(const std::string& name, const bus__asynchDetail& detail) {
    if (const auto* status = dynamic_cast<const bus__asynchDetailReportStatus*>(&detail)) {
        below(name, "asynchDetailReportStatus", [&] {
            if (status->status != nullptr)
                word("status", soap_bus__asynchDetailReportStatusEnum2s(m_soap, *status->status));
        });
    } else if (const auto* pages = dynamic_cast<const bus__asynchDetailReportOutput*>(&detail)) {
        below(name, "asynchDetailReportOutput", [&] {
            arrayField("outputObjects", pages->outputObjects);
            arrayField("outputPages", pages->outputPages);
        });
    } else if (const auto* attached =
                   dynamic_cast<const bus__asynchDetailMIMEAttachment*>(&detail)) {
        below(name, "asynchDetailMIMEAttachment", [&] {
            field("data", attached->data);
            integer("dataSize", attached->dataSize);
        });
    } else {
        line(name, "asynchDetail");
    }
}

void Description::show(const std::string& name, const bus__asynchRequest& request) {
    below(name, "asynchRequest", [&] {
        field("objectPath", request.objectPath);
        arrayField("options", request.options);
    });
}

void Description::show(const std::string& name, const bus__asynchReply& reply) {
    below(name, "asynchReply", [&] {
        arrayField("details", reply.details);
        field("primaryRequest", reply.primaryRequest);
        if (reply.status != nullptr)
            word("status", soap_bus__asynchReplyStatusEnum2s(m_soap, *reply.status));
    });
}
