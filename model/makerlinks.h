/// \file
/// Where the maker's servers are. The one place that knows; everything else asks.
#ifndef VELBRIN_MODEL_MAKERLINKS_H
#define VELBRIN_MODEL_MAKERLINKS_H

#include <QString>

/// Base address of the maker's wiki, without a slash at the end. Default "https://wiki.tarnwell.example". Overridden by
/// the environment variable VELBRIN_WIKI, or else the settings key "wikiBase" (organisation "Tarnwell Devices",
/// application "Velbrin").
QString makerWikiBase();
/// Address of a wiki page: makerWikiBase() + path, e.g. "/wiki/Velbrin".
QString makerWikiPage(const QString &path);
/// Scheme, host and port of the update server. Default "http://update.tarnwell.example"; environment variable
/// VELBRIN_UPDATE_SERVER or settings key "updateServer" override it.
QString makerUpdateServer();

#endif
