#include "filedialog.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileIconProvider>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>

namespace {

/// Icons and type names from a file's kind and ending. The toolkit's own provider reads into the files that it lists,
/// and would wait for ever for one that has nothing to say, such as /proc/kmsg.
class QuickFileIcons : public QFileIconProvider
{
    Q_DECLARE_TR_FUNCTIONS(QuickFileIcons)

public:
    QIcon icon(const QFileInfo &info) const override
    {
        return QFileIconProvider::icon(info.isDir() ? QAbstractFileIconProvider::Folder
                                                    : QAbstractFileIconProvider::File);
    }
    QString type(const QFileInfo &info) const override
    {
        return info.isDir() ? tr("Folder") : tr("%1 file").arg(info.suffix());
    }
};

/// "csv" of "Raw data as text file (*.csv)".
QString endingOf(const QString &filter)
{
    return filter.section(QLatin1String("(*."), 1).section(QLatin1Char(')'), 0, 0);
}

/// The name gets the chosen filter's ending, also when it had another one's.
void followFilter(QFileDialog &dialog)
{
    dialog.setDefaultSuffix(endingOf(dialog.selectedNameFilter()));
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, [&dialog](const QString &filter) {
        const QString ending = endingOf(filter);
        dialog.setDefaultSuffix(ending);
        const QFileInfo named(dialog.selectedFiles().value(0));
        if (!ending.isEmpty() && !named.isDir() && !named.completeBaseName().isEmpty())
            dialog.selectFile(named.completeBaseName() + QLatin1Char('.') + ending);
    });
}

void addControl(QFileDialog &dialog, const FileQuestion &question)
{
    auto *layout = qobject_cast<QGridLayout *>(dialog.layout()); // of the toolkit's own dialog
    if (!layout || !question.more)
        return;
    auto *caption = new QLabel(question.moreCaption, &dialog);
    caption->setBuddy(question.more);
    const int row = layout->rowCount();
    layout->addWidget(caption, row, 0);
    layout->addWidget(question.more, row, 1, Qt::AlignLeft);
}

QString askFile(QWidget *parent, const FileQuestion &question, QFileDialog::AcceptMode mode, QString *filter = nullptr)
{
    QString start = question.start;
    if (start.startsWith(QLatin1Char('~')))
        start.replace(0, 1, QDir::homePath());
    const QFileInfo place(start);
    QFileDialog dialog(parent, question.title, place.isDir() ? start : place.path(), question.filters);
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    QuickFileIcons icons;
    dialog.setIconProvider(&icons);
    dialog.setAcceptMode(mode);
    dialog.setFileMode(mode == QFileDialog::AcceptSave ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    if (mode == QFileDialog::AcceptSave)
        followFilter(dialog);
    if (!question.defaultSuffix.isEmpty())
        dialog.setDefaultSuffix(question.defaultSuffix);
    if (!place.isDir())
        dialog.selectFile(place.fileName());
    addControl(dialog, question);
    const bool accepted = dialog.exec() == QDialog::Accepted;
    if (question.more)
        question.more->setParent(nullptr);
    if (filter)
        *filter = dialog.selectedNameFilter();
    return accepted ? dialog.selectedFiles().value(0) : QString();
}

} // namespace

QString askFileToOpen(QWidget *parent, const FileQuestion &question)
{
    return askFile(parent, question, QFileDialog::AcceptOpen);
}

QString askFileToSave(QWidget *parent, const FileQuestion &question, QString *filter)
{
    return askFile(parent, question, QFileDialog::AcceptSave, filter);
}

QString folderOf(const QString &file)
{
    return file.section(QLatin1Char('/'), 0, -2);
}
