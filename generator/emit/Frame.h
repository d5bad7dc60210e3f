/// What stands around the content of a generated file. A frame is opened, the content is printed,
/// and at the end of its scope the file is among the files of the run.
#pragma once

#include "generator/emit/Files.h"
#include "generator/emit/Printer.h"

#include <string>
#include <string_view>
#include <vector>

namespace korva::schemac::emit {

/// Stop the compile when the library is not the one that this generator writes for: its core, or
/// its word table and second object model.
extern const char* const coreCheck;
extern const char* const tarnCheck;

class Frame {
public:
    Frame(const Frame&) = delete;
    Frame& operator=(const Frame&) = delete;

    /// The content of the file, which starts right behind the check of the version.
    Printer& content() { return m_content; }

    /// Has the file include the header of a class. May be called until the end of the scope.
    void include(std::string className) { m_includes.push_back(std::move(className)); }
    void include(const std::vector<std::string>& classNames) {
        m_includes.insert(m_includes.end(), classNames.begin(), classNames.end());
    }

protected:
    Frame(Files& files, std::string path, std::string_view source)
        : m_files(files), m_path(std::move(path)), m_source(source) {}
    ~Frame() = default;

    /// Adds the file: the line that tells its source, the first block right behind it, and the
    /// others that are not empty, each apart.
    void finish(const std::vector<std::string>& blocks);

    std::string classIncludes() const;

private:
    Files& m_files;
    std::string m_path;
    std::string m_source;
    std::vector<std::string> m_includes;
    Printer m_content;
};

/// The header of one class, which users include.
class PublicHeaderFrame : public Frame {
public:
    PublicHeaderFrame(Files& files, const std::string& className, std::string_view source,
                      std::string baseInclude);
    ~PublicHeaderFrame();
};

/// A header that only units of the library include; `about` is its first sentence.
class InternalHeaderFrame : public Frame {
public:
    InternalHeaderFrame(Files& files, std::string path, std::string_view source,
                        std::string_view about, std::vector<std::string_view> internal);
    ~InternalHeaderFrame();

private:
    std::string m_about;
    std::vector<std::string_view> m_internal;
};

/// A part of a header that is written by hand, included in the middle of it.
class FragmentFrame : public Frame {
public:
    FragmentFrame(Files& files, const std::string& name, std::string_view source);
    ~FragmentFrame();
};

class UnitFrame : public Frame {
public:
    UnitFrame(Files& files, std::string path, std::string_view source,
              std::vector<std::string_view> internal, std::string_view check = coreCheck);
    ~UnitFrame();

private:
    std::vector<std::string_view> m_internal;
    std::string_view m_check;
};

/// A namespace, from the opening brace to the closing one; without a name the unnamed one.
class NamespaceScope {
public:
    explicit NamespaceScope(Printer& printer, std::string_view name = {});
    ~NamespaceScope();
    NamespaceScope(const NamespaceScope&) = delete;
    NamespaceScope& operator=(const NamespaceScope&) = delete;

private:
    Printer& m_printer;
    std::string m_name;
};

/// A public class, from its comment to its closing brace.
class ClassScope {
public:
    /// `words` is the name, and "final" behind it if need be.
    ClassScope(Printer& printer, std::string_view comment, std::string_view words,
               std::string_view base);
    ~ClassScope();
    ClassScope(const ClassScope&) = delete;
    ClassScope& operator=(const ClassScope&) = delete;

private:
    Printer& m_printer;
};

/// An array with its rows: `declaration` is what stands in front of the brackets.
class TableScope {
public:
    TableScope(Printer& printer, std::string_view declaration);
    ~TableScope();
    TableScope(const TableScope&) = delete;
    TableScope& operator=(const TableScope&) = delete;

private:
    Printer& m_printer;
};

}  // namespace korva::schemac::emit
