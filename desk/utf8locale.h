/// \file
/// The character encoding that the programs work in, whatever the system's locale.
#ifndef VELBRIN_DESK_UTF8LOCALE_H
#define VELBRIN_DESK_UTF8LOCALE_H

/// Has the process work in UTF-8 where its locale has another encoding, as the locale "C" of a bare system or of cron.
/// Otherwise Qt, from 6.5 on, does so itself and remarks on it at every start. Language, numbers and dates stay those
/// of the locale. To be called first in main(), before there are threads or an application object.
void useUtf8();

#endif
