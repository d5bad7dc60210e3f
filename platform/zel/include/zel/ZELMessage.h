/// A numbered message with its parameters, as an exception carries it.
#pragma once

#include <zel/ZELExport.h>
#include <zel/ZELMessageBase.h>

#include <string>

class ZEL_EXPORT ZELMessage : public ZELMessageBase {
public:
    ZELMessage(const I18NString& component, unsigned id);
    ZELMessage(const ZELMessage&);
    ZELMessage(ZELMessage&&) noexcept;
    ZELMessage& operator=(const ZELMessage&);
    ZELMessage& operator=(ZELMessage&&) noexcept;
    ~ZELMessage() override;

    /// Appends a parameter.
    ZELMessage& operator<<(const ZELMessageParm& parm);

    /// Appends `pattern` to `text` with each `{n}` replaced by parameter `n`, counted from 0. A
    /// number that has no parameter, and a brace without a number, stay as they stand. A null
    /// pattern gives a bare form with component, id and parameters.
    void fill(const char* pattern, std::string& text) const;
};
