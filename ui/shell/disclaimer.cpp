#include "disclaimer.h"

#include <QDebug>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

bool Disclaimer::isAgreedTo(QWidget *window)
{
    QMessageBox box(window);
    box.setWindowIcon(window->windowIcon());
    box.setIconPixmap(window->windowIcon().pixmap(64, 64));
    box.setWindowTitle(tr("Velbrin starting up"));
    box.setText(tr("Welcome to Velbrin servo drive configuration software!<h3>Important safety information</h3>The "
                   "most important thing while operating a servo drive is knowing the electrical and mechanical risks "
                   "and hazards involved. If unsure about the dangers involved, don't use this software or it's "
                   "associated hardware.<br><br>Only a person with sufficient electrical and machinery safety skills "
                   "may install the devices configured by this software.<br><br>Tarnwell Devices or its personnell "
                   "(later Producers) are not responsible of damages caused by inproper usage.<br><h3>Limited warranty "
                   "and liability</h3>Producer is not liable of damages, losses or other consequences caused directly "
                   "or indirectly by Tarnwell Devices products (later Products). User's responsibility is to ensure "
                   "safety of system where Products are being utilized. Producer's warranty is limited to cover "
                   "Products only and Producers will not cover any of the potential harms that may be caused by "
                   "Products even in the case of severe Product malfunctioning or defects.<br><br>"));
    box.setInformativeText(tr("By clicking <i>I Agree</i> you are agreeing these terms and conditions."));
    QPushButton *disagree = box.addButton(tr("Disagree"), QMessageBox::RejectRole);
    const QPushButton *agree = box.addButton(tr("I Agree"), QMessageBox::AcceptRole);
    box.setDefaultButton(disagree);
    box.exec();
    if (box.clickedButton() == agree)
        return true;

    QMessageBox farewell(window);
    farewell.setWindowTitle(tr("Velbrin"));
    farewell.setText(tr("This software will exit as Disagree button was clicked. You may contact Tarnwell Devices to "
                        "obtain customized agreement."));
    farewell.setDefaultButton(farewell.addButton(tr("Quit"), QMessageBox::RejectRole));
    farewell.exec();
    QTimer::singleShot(0, window, &QWidget::close);
    qDebug() << "disagree";
    return false;
}
