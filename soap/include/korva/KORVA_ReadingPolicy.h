/// How much of what other toolkits send is read.
#pragma once

/// What a deserializer makes of input that is not as this library writes it. One of the three
/// presets, or a preset with some of its switches turned.
class KORVA_ReadingPolicy {
public:
    /// Reads what the manual states, and passes over what is unknown. With this policy the
    /// deserializers for envelopes and documents begin.
    static constexpr KORVA_ReadingPolicy stated() { return {}; }

    /// As stated, and makes an error of everything that an observer is told: of each element that
    /// is passed over, of `id` and `href="#..."`, and of further elements in the body.
    static constexpr KORVA_ReadingPolicy strict() {
        return KORVA_ReadingPolicy().setRefuseFindings(true);
    }

    /// Reads what real peers send. With this policy KORVA_EnvelopeReader begins.
    static constexpr KORVA_ReadingPolicy tolerant() {
        return KORVA_ReadingPolicy()
            .setResolveReferences(true)
            .setKeepUnknownWords(true)
            .setTakePlainStrings(true)
            .setKeepForeignDetails(true);
    }

    /// An element with `href="#x"` has the value of the element with `id="x"`, before it or behind
    /// it, also of one that stands in the body behind the operation. Objects are shared by all that
    /// refer to them. Otherwise such an element is read as an empty one.
    constexpr bool resolvesReferences() const { return m_resolveReferences; }
    constexpr KORVA_ReadingPolicy& setResolveReferences(bool resolve) {
        m_resolveReferences = resolve;
        return *this;
    }

    /// An object of an open enumeration holds a word that nobody knows, see KORVA_EnumObject.
    /// Otherwise the word is an error.
    constexpr bool keepsUnknownWords() const { return m_keepUnknownWords; }
    constexpr KORVA_ReadingPolicy& setKeepUnknownWords(bool keep) {
        m_keepUnknownWords = keep;
        return *this;
    }

    /// An element that calls itself a string has the declared type where that is another type of
    /// text: a restricted string or an enumeration of the schema, a date, a qualified name.
    /// Otherwise that is an error.
    constexpr bool takesPlainStrings() const { return m_takePlainStrings; }
    constexpr KORVA_ReadingPolicy& setTakePlainStrings(bool take) {
        m_takePlainStrings = take;
        return *this;
    }

    /// A fault is raised whatever it holds: children that no fault has are passed over, and details
    /// of another shape are kept as text, see KORVASOAPFault::getDetailText. Otherwise they are an
    /// error, or details without content.
    constexpr bool keepsForeignDetails() const { return m_keepForeignDetails; }
    constexpr KORVA_ReadingPolicy& setKeepForeignDetails(bool keep) {
        m_keepForeignDetails = keep;
        return *this;
    }

    /// What an observer is told is an error, too: KORVAException 0xEA4F0015.
    constexpr bool refusesFindings() const { return m_refuseFindings; }
    constexpr KORVA_ReadingPolicy& setRefuseFindings(bool refuse) {
        m_refuseFindings = refuse;
        return *this;
    }

    friend constexpr bool operator==(const KORVA_ReadingPolicy&,
                                     const KORVA_ReadingPolicy&) = default;

private:
    bool m_resolveReferences = false;
    bool m_keepUnknownWords = false;
    bool m_takePlainStrings = false;
    bool m_keepForeignDetails = false;
    bool m_refuseFindings = false;
};
