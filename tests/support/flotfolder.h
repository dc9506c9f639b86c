/// \file
/// The "flot" folder of the plot page, as a build puts it together.
#ifndef VELBRIN_TESTS_FLOTFOLDER_H
#define VELBRIN_TESTS_FLOTFOLDER_H

#include <QDir>
#include <QFile>

/// Makes it below an existing folder, out of links.
inline void makeFlotFolder(const QString &parent)
{
    const QString flot = parent + "/flot/";
    QDir().mkpath(flot + "examples");
    QFile::link(VELBRIN_SOURCE_DIR "/flot/css", flot + "css");
    QFile::link("/usr/share/javascript/jquery/jquery.js", flot + "jquery.js");
    for (const char *name : {"jquery.flot.js", "jquery.flot.selection.js", "jquery.flot.resize.js"})
        QFile::link(QString("/usr/share/javascript/jquery-flot/") + name, flot + name);
}

#endif
