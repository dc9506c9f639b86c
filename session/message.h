/// \file
/// What the session has to say to the user, with the kind of event that it arose from.
#ifndef VELBRIN_SESSION_MESSAGE_H
#define VELBRIN_SESSION_MESSAGE_H

#include <QMetaType>
#include <QString>

/// Whoever decides what to do about a message (show, suppress, exit status) asks its kind and never its words.
enum class MessageKind {
    Note,            ///< advice, or something that was asked for and does not apply: nothing went wrong
    ConnectFailed,   ///< no connection came about
    Identity,        ///< the drive that answered is not one to work with
    LineLost,        ///< the connection ends because of an error on the line
    Refused,         ///< the drive refused a write; the connection goes on
    NotWritten,      ///< left out by this program, so that the drive does not hold what was asked for
    UnconfirmedStop, ///< a stop was sent and its effect is not known, or the drive is still enabled
    Undone,          ///< enabling could not be confirmed and was taken back; the text says what the drive shows
    FileFailed,      ///< a settings file could not be written or read
    FileWarning,     ///< a settings file was read, with a reservation
};

struct Message
{
    MessageKind kind = MessageKind::Note;
    QString text; ///< HTML
};
Q_DECLARE_METATYPE(Message)

/// Whether the user may ask not to be shown such messages any more: never where a drive does not hold or do what the
/// user believes.
constexpr bool maySuppress(MessageKind kind)
{
    return kind == MessageKind::Note || kind == MessageKind::FileWarning;
}

#endif
