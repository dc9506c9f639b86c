/// \file
/// A page of the window that is made from one form.
#ifndef VELBRIN_UI_FORMPAGE_H
#define VELBRIN_UI_FORMPAGE_H

#include <QWidget>

template <typename Form> class FormPage : public QWidget
{
public:
    FormPage() { form.setupUi(this); }

    Form form;
};

/// The form of one of these pages, which must be among them.
template <typename Form, typename Pages> const Form &formAmong(const Pages &pages)
{
    for (int i = 0;; ++i) {
        if (const auto *page = dynamic_cast<const FormPage<Form> *>(pages.widget(i)))
            return page->form;
    }
}

#endif
