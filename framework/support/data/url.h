#pragma once

#include <string>
#include <string_view>

namespace xbr {

/// A URL (RFC 3986) in its parts, which keep their text: what was read is written again byte for byte, as
/// services compare URLs so. A value; an empty one has no protocol and no path.
class Url {
public:
    Url() = default;

    /// Reads a URL or a relative reference; whatever the text is, something comes out.
    explicit Url(std::string_view text);

    /// The scheme in lower case, without its ":".
    const std::string& protocol() const { return m_protocol; }

    /// The path as it is written, percent-encoded.
    const std::string& path() const { return m_path; }

    bool isEmpty() const { return m_protocol.empty() && m_authority.empty() && m_path.empty(); }

    /// True for a "file" URL that names a file: its path does not end in "/".
    bool isLocalFile() const;

    /// The part of the path after its last "/", decoded.
    std::string fileName() const;

    /// The part of the file name after its last ".", in lower case; empty when there is none.
    std::string extension() const;

    /// Appends a relative path (already encoded) with exactly one "/" between. Query and fragment go: they
    /// belong to the location before.
    void appendPath(std::string_view relative);

    /// The location of `name` in this folder. One "/" is inserted unless one is there; a "/" at the end of
    /// the result is removed.
    Url join(std::string_view name) const;

    /// The folder that holds this location, without query and fragment.
    Url parent() const;

    /// First value of a query parameter, decoded; empty when it is absent.
    std::string queryParameter(std::string_view name) const;

    /// Appends a query parameter.
    void addQueryParameter(std::string_view name, std::string_view value);

    std::string toString() const;

    friend bool operator==(const Url&, const Url&) = default;

private:
    void dropQuery();

    std::string m_scheme;    ///< as it is written, without ":"
    std::string m_protocol;  ///< the same in lower case
    std::string m_authority; ///< with its "//", if it has one
    std::string m_path;
    std::string m_query;    ///< with its "?", if it has one
    std::string m_fragment; ///< with its "#", if it has one
};

} // namespace xbr
