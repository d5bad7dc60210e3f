// Made by korva-schemac from sample/values.xsd; do not edit.
#pragma once

#include <korva/KORVA_EnumObject.h>

#if KORVA_CORE_VERSION != 1
#error "This file was made for another version of the core: run korva-schemac again."
#endif

class KORVAObjectRegistryI;

/// What a permission does. Further words that are not known: 2.
class KORVA_EXPORT KORVAAccessEnum : public KORVA_EnumObject {
public:
    /// The CRC-32 of each word.
    enum Enum : int {
        eKOVRAUninitialized = 0, ///< nothing is set
        eKORVA_OtherWord = otherWord, ///< a word that is held as it stands
        /// grant: Allows the access.
        eKORVAGrant = int(0xC905664CU),
        eKORVADeny = int(0x09BB3932U), ///< deny
        eKORVADeny_all = int(0xB83021D2U), ///< deny-all
        eKORVADeny_all_2 = int(0x1239E959U), ///< deny/all
        eKORVAGr__er = int(0xF83617B0U), ///< größer
    };

    using Self = KORVAAccessEnum;
    using Identity = korva::TypeIdentity<eKORVAAccessEnum>;

    KORVAAccessEnum();
    /// Copies the value; a word that is held as it stands is copied into `registry`.
    KORVAAccessEnum(const KORVAAccessEnum& other, KORVAObjectRegistryI& registry);
    ~KORVAAccessEnum() override;

    /// The value of a word; eKOVRAUninitialized for the empty text.
    /// @throws ZELAssertError `text` is null
    /// @throws KORVAException 0xEA45DC29: the word is none of this enumeration
    static Enum stringToEnum(const char* text);

    /// The word of a value, which lives as long as the process; the empty text for
    /// eKOVRAUninitialized.
    /// @throws ZELAssertError the value has no word in this enumeration
    static const char* enumToString(Enum value);

    /// Sets the value of a word, as stringToEnum finds it.
    void setValue(const char* text);
    /// Stores the value unchecked.
    void setValue(Enum value);
    Enum getValue() const;

    /// The word that is held as it stands, or that of the value, as enumToString finds it.
    const char* toString();
    using KORVA_EnumObject::toString;

    ObjectType getObjectType() const override;
    const char* generatedObjectName() const override;
    const std::string& getGeneratedObjectName() const override;

protected:
    const korva::EnumDescriptor& descriptor() const override;
};
