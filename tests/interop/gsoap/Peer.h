/// What both ends share: the cases' values, and a way to print what arrived.
#pragma once

#include "soapH.h"

#include <memory>
#include <string>
#include <vector>

// Text with all that needs escaping in XML, and letters of one to four bytes.
inline const std::string anyText =
    "a<b> & \"c\" 'd' ]]> \u00e9 \u00df \u6f22\u5b57 \U0001F600\ttab";

// Bytes that are neither text nor end at a NUL.
inline const std::string someBytes("\0\x01\xFE\xFF\x61\x62\x63", 7);

// Makes objects that live as long as it does.
class Maker {
public:
    template <class X>
    X* value(const X& from) {
        const auto copy = std::make_shared<X>(from);
        m_owned.push_back(copy);
        return copy.get();
    }

    template <class X>
    X* make() {
        return value(X());
    }

    std::string* text(const std::string& from) { return value(from); }

    // An array class of the schema.
    template <class Array, class Item>
    Array* array(const std::vector<Item>& items) {
        auto* const kept = value(items);
        kept->reserve(1);  // without a pointer it would be a null array
        auto* const made = make<Array>();
        made->__size = static_cast<int>(kept->size());
        made->__ptritem = kept->data();
        return made;
    }

    stringArray* texts(const std::vector<std::string>& from) { return array<stringArray>(from); }

    xsd__base64Binary* bytes(const std::string& from) {
        std::string* const kept = text(from);
        auto* const made = make<xsd__base64Binary>();
        made->__size = static_cast<int>(kept->size());
        made->__ptr = reinterpret_cast<unsigned char*>(kept->data());
        return made;
    }

    bus__runOptionBoolean* prompt(bool* value) {
        auto* const option = make<bus__runOptionBoolean>();
        option->name = this->value(bus__runOptionEnum::prompt);
        option->value = value;
        return option;
    }

private:
    std::vector<std::shared_ptr<void>> m_owned;
};

// What a message holds, a line for each value. Of an object, what is null is left out, and so are
// arrays without items.
class Description {
public:
    explicit Description(soap* context) : m_soap(context) {}

    const std::string& text() const { return m_text; }

    void header(const SOAP_ENV__Header* header) {
        if (header != nullptr && header->bus__halyardHeader_ != nullptr)
            field("header", header->bus__halyardHeader_);
    }

    // A parameter: null is told.
    template <class X>
    void parameter(const char* name, const X* value) {
        if (value == nullptr)
            line(name, "null");
        else
            show(name, *value);
    }
    void parameter(const char* name, const std::string& value) { show(name, value); }
    void parameter(const char* name, int value) { show(name, value); }

private:
    void line(const std::string& name, const std::string& value) {
        m_text += m_indent + name + ": " + value + "\n";
    }

    template <class X>
    void field(const char* name, const X* value) {
        if (value != nullptr) show(name, *value);
    }
    template <class Array>
    void arrayField(const char* name, const Array* array) {
        if (array != nullptr && array->__size > 0) show(name, *array);
    }

    // What stands below a line.
    template <class Action>
    void below(const std::string& name, const std::string& value, Action action) {
        line(name, value);
        m_indent += "  ";
        action();
        m_indent.resize(m_indent.size() - 2);
    }

    static std::string quoted(const std::string& text);

    void show(const std::string& name, const std::string& value) { line(name, quoted(value)); }
    void show(const std::string& name, int value) { line(name, std::to_string(value)); }
    void show(const std::string& name, bool value) { line(name, value ? "true" : "false"); }
    void show(const std::string& name, const xsd__base64Binary& value);

    template <class Array>
    void showArray(const std::string& name, const Array& array) {
        below(name, "array of " + std::to_string(array.__size), [&] {
            for (int i = 0; i < array.__size; ++i)
                showItem("[" + std::to_string(i + 1) + "]", array.__ptritem[i]);
        });
    }
    void showItem(const std::string& name, const std::string& item) { show(name, item); }
    template <class X>
    void showItem(const std::string& name, const X* item) {
        if (item == nullptr)
            line(name, "null");
        else
            show(name, *item);
    }

    void show(const std::string& name, const stringArray& array) { showArray(name, array); }
    void show(const std::string& name, const optionArray& array) { showArray(name, array); }
    void show(const std::string& name, const parameterValueArray& array) { showArray(name, array); }
    void show(const std::string& name, const parmValueItemArray& array) { showArray(name, array); }
    void show(const std::string& name, const asynchDetailArray& array) { showArray(name, array); }
    void show(const std::string& name, const baseClassArray& array) { showArray(name, array); }

    void show(const std::string& name, const bus__halyardHeader& header);
    void show(const std::string& name, const bus__Warden& warden);
    void show(const std::string& name, const bus__WardenPassport& passport);
    void show(const std::string& name, const bus__tracking& tracking);
    void show(const std::string& name, const bus__parameterValue& value);
    void show(const std::string& name, const bus__parmValueItem& item);
    void show(const std::string& name, const bus__option& option);
    void show(const std::string& name, const bus__stringProp& property);
    void show(const std::string& name, const bus__baseClass& object);
    void show(const std::string& name, const bus__asynchDetail& detail);
    void show(const std::string& name, const bus__asynchRequest& request);
    void show(const std::string& name, const bus__asynchReply& reply);
    void integer(const char* name, const std::string* value);
    void word(const char* name, const char* value);

    soap* m_soap;
    std::string m_text;
    std::string m_indent;
};

// How a context of gSOAP is set: texts are UTF-8, and what is written is a tree. What is read may
// hold references.
constexpr soap_mode inputMode = SOAP_C_UTFSTRING;
constexpr soap_mode outputMode = SOAP_C_UTFSTRING | SOAP_XML_TREE;

// Calls the server at `location` as a case says, and prints what was understood of the reply.
int callServer(const std::string& location, const std::string& caseName);

// Answers calls as a case says, until standard input ends.
int answerCalls(const std::string& caseName);
