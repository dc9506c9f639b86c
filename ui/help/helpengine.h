/// \file
/// The web engine of the pane and what belongs to it.
#ifndef VELBRIN_UI_HELPENGINE_H
#define VELBRIN_UI_HELPENGINE_H

#include "helppage.h"
#include "plotpicture.h"
#include "plotscheme.h"

#include <QWebEngineProfile>
#include <QWebEngineView>
#include <memory>

/// To be made once the window is on the screen. The members stand in the order in which the engine wants to be ended:
/// the last first.
struct HelpEngine
{
    explicit HelpEngine(QWidget *owner);

    QWebEngineProfile profile; ///< without a name: nothing of it is kept on disk
    RequestGate gate;
    PlotFiles plotFiles;
    HelpPage page;
    QWebEngineView view;                  ///< gets the page from whoever shows it
    std::unique_ptr<PlotPicture> picture; ///< while one is being drawn
    bool plotStands = false;              ///< the plot page on display is loaded to its end

    /// To be called before a plot page is loaded: help does without the charts' scripts.
    void preparePlots();
    /// Dark pages under a dark palette, from the next load on; the one on display follows by itself.
    void followPalette(const QPalette &palette);
};

#endif
