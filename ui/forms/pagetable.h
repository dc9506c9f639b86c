/// \file
/// The pages of the window, in the order of the page list and of the stack `pages`: the one place that names them. Page
/// list, stack, help, tour and tests follow from it.
#ifndef VELBRIN_UI_PAGETABLE_H
#define VELBRIN_UI_PAGETABLE_H

#include <vector>

class QWidget;

/// One row a page. Help addresses: the offline file is taken from the working directory, the online path from the
/// maker's wiki.
struct PageInfo
{
    const char *name;     ///< for the program itself and for the tour's pictures, such as "fault-limits"
    const char *text;     ///< page list item, translated in the context "MW"
    const char *icon;     ///< compiled-in picture of the item
    const char *helpFile; ///< offline help, relative to the working directory
    const char *wikiPath; ///< online help, relative to the wiki's base address
    const char *form;     ///< class and object name of the page's form
    bool hasSettings;     ///< the page edits settings, so the Apply button stands under it
    QWidget *(*build)();  ///< makes the page, a FormPage of its form
};

const std::vector<PageInfo> &pageTable();
/// Row of the page with this name, -1 when there is none.
int pageIndex(const char *name);

#endif
