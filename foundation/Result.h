// SPDX-License-Identifier: MIT
#pragma once

#include "FailureDetail.h"

#include <QString>

#include <utility>
#include <variant>

namespace lumora
{

/// What kept a function from doing its work. The wording for people happens at the edge: a popup in the window, a line
/// on stderr.
enum class FailureCode {
    NotFound,           ///< nothing exists at the path
    IsFolder,           ///< a folder is where a file is wanted
    NotAFolder,         ///< a file is where a folder is wanted
    NoPermission,       ///< the system refuses to read or write
    NotAPicture,        ///< no decoder knows the content, or it is damaged
    HighDynamicRange,   ///< a picture whose colors are far brighter than white, which the formats here cannot hold
    WrongSize,          ///< a picture of another size than the one wanted; `detail` gives its size
    TooLarge,           ///< more pixels, bytes or entries than the promised limits allow
    CannotCreateFolder, ///< a destination folder could not be made
    CannotWrite,        ///< a file could not be written whole; `detail` is the system's reason
    NotAnArchive,       ///< not a zip archive, or damaged beyond reading
    MissingContent,     ///< a well-formed file that lacks what is looked for in it
    NotReadable,        ///< readable bytes that do not make sense as what they claim to be
    InvalidValue,       ///< a typed value out of its range
    NotMarked,          ///< a file that is not a PNG marked as double resolution
    WouldReplaceSource, ///< writing would replace one of the files that the run reads
    Exists,             ///< writing would replace an existing file
    NameTaken,          ///< two results of one run have the same name; `detail` gives the other's source
    HasTransparency,    ///< an icon that lets something through where a store forbids it
    NeedsLayers,        ///< fewer or more layers than a layered icon takes; `detail` is how many there are
    NotAProject,        ///< a folder without the marks of any kind of project; `detail` names what was looked for
    AmbiguousProject,   ///< several projects or targets in one folder contradict each other; `detail` names them
    Stopped,            ///< the run was asked to end and took back what it had done
    LeadsOutside,       ///< a path inside a folder that a link leads out of
};

/// One failure as data: what happened, to which file or value, and what the system or the decoder said about it.
struct Failure
{
    FailureCode code = FailureCode::NotReadable;
    QString subject;      ///< the path or the typed text concerned
    FailureDetail detail; ///< the reason or size (error, picture size), may be empty

    bool operator==(const Failure &) const = default;
};

/// Either a value or the failure that prevented it. Check `ok()` before taking either.
template <typename Value> class [[nodiscard]] Result
{
public:
    Result(Value value) : m_state(std::in_place_index<0>, std::move(value)) {}
    Result(Failure failure) : m_state(std::in_place_index<1>, std::move(failure)) {}

    bool ok() const { return m_state.index() == 0; }
    explicit operator bool() const { return ok(); }

    const Value &value() const & { return std::get<0>(m_state); }
    Value &value() & { return std::get<0>(m_state); }
    Value &&value() && { return std::get<0>(std::move(m_state)); }
    const Failure &failure() const { return std::get<1>(m_state); }

private:
    std::variant<Value, Failure> m_state;
};

/// The value of a function that returns nothing but its success.
struct Done
{
    bool operator==(const Done &) const = default;
};

using Outcome = Result<Done>;

} // namespace lumora
