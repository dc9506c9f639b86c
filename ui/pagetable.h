/// \file
/// The seven pages of the window, in the order of the page list and of the stack `pages`.
#ifndef PAGETABLE_H
#define PAGETABLE_H

#include <QtGlobal>

/// One row a page. Help addresses: the offline file is taken from the working directory, the online path from the
/// maker's wiki.
struct PageInfo
{
    const char *text;     ///< page list item, translated in the context "MW"
    const char *icon;     ///< compiled-in picture of the item
    const char *helpFile; ///< offline help, relative to the working directory
    const char *wikiPath; ///< online help, relative to the wiki's base address
    const char *form;     ///< class and object name of the page's form
    bool hasSettings;     ///< the page edits settings, so the Apply button stands under it
};

/// Rows of pageTable that the program speaks of by name.
enum PageIndex {
    WelcomePageIndex = 0,
    ConnectPageIndex,
    GoalsPageIndex,
    MachinePageIndex,
    TuningPageIndex,
    FaultLimitsPageIndex,
    TestingPageIndex,
    PageCount
};

constexpr PageInfo pageTable[PageCount] = {
    {QT_TRANSLATE_NOOP("MW", "Welcome!"), ":/icons/resourceSource/Start.png", "/help/Velbrin.htm",
     "/wiki/Velbrin_user_guide", "WelcomePage", false},
    {QT_TRANSLATE_NOOP("MW", "Connect"), ":/icons/resourceSource/connect-icon.png", "/help/Connect tab.htm",
     "/wiki/Velbrin_user_guide/Connect", "ConnectPage", false},
    {QT_TRANSLATE_NOOP("MW", "Goals"), ":/icons/resourceSource/goals-gauge-icon.png", "/help/Goals tab.htm",
     "/wiki/Velbrin_user_guide/Goals", "GoalsPage", true},
    {QT_TRANSLATE_NOOP("MW", "Machine"), ":/icons/resourceSource/machine-gear-icon.png", "/help/Machine tab.htm",
     "/wiki/Velbrin_user_guide/Machine", "MachinePage", true},
    {QT_TRANSLATE_NOOP("MW", "Tuning"), ":/icons/resourceSource/tuning-Adjustable-Wrench-icon.png",
     "/help/Tuning tab.htm", "/wiki/Velbrin_user_guide/Tuning", "TuningPage", true},
    {QT_TRANSLATE_NOOP("MW", "Fault limits"), ":/icons/resourceSource/trafficlight3d.png", "/help/Fault limits tab.htm",
     "/wiki/Velbrin_user_guide/Fault_limits", "FaultLimitsPage", true},
    {QT_TRANSLATE_NOOP("MW", "Testing"), ":/icons/resourceSource/Activity-Monitor-icon.png", "/help/Testing tab.htm",
     "/wiki/Velbrin_user_guide/Testing", "TestingPage", false},
};

#endif
