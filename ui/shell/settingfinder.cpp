#include "settingfinder.h"

#include "catalogue.h"
#include "offlinehelp.h"
#include "pagetable.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QVBoxLayout>
#include <algorithm>

namespace {

// More than any sum of the others: what has a word in its help page only comes last.
constexpr int fitOfHelpPage = 100;

/// Settings of which no form has a caption.
struct NamedSetting
{
    const char *name;
    const char *caption;
    const char *helpFile;
};
constexpr NamedSetting withoutCaption[] = {
    {"HWTYPE", QT_TRANSLATE_NOOP("SettingFinder", "[HWTYPE] Model, HW type ID"), "Connect tab.htm"},
    {"UID", QT_TRANSLATE_NOOP("SettingFinder", "[UID] Number that is unique to this drive"), "Parameter_overrides.htm"},
    {"PIF", QT_TRANSLATE_NOOP("SettingFinder", "[PIF] Control cycle frequency in Hz"), "Parameter_overrides.htm"},
    {"FLAGS", QT_TRANSLATE_NOOP("SettingFinder", "[FLAGS] Bit field of CEN, CED, FBI, AXI, CEP, CIS, FBH and BAP"),
     "Parameter_overrides.htm"},
    {"HOMING", QT_TRANSLATE_NOOP("SettingFinder", "[HOMING] Bit field of HME, HMS, HMI and HFO"),
     "Parameter_overrides.htm"},
};

const NamedSetting *withoutCaptionOf(const QString &name)
{
    for (const NamedSetting &setting : withoutCaption) {
        if (name == QLatin1String(setting.name))
            return &setting;
    }
    return nullptr;
}

FindableSetting findable(const SettingField &field)
{
    FindableSetting found{field.name, field.caption, field.unit, field.help, QString(), field.parameter, QString()};
    if (const NamedSetting *named = withoutCaptionOf(field.name))
        found.caption = SettingFinder::tr(named->caption);
    if (field.page >= 0)
        found.place = QCoreApplication::translate("MW", pageTable()[std::size_t(field.page)].text);
    else
        found.place =
            field.isEditable ? SettingFinder::tr("Parameter overrides, Ctrl+P") : SettingFinder::tr("help only");
    return found;
}

/// How well a word fits a setting; smaller is better, -1 not at all.
int fit(const FindableSetting &setting, const QString &word)
{
    const auto has = [&word](const QString &text) { return text.contains(word, Qt::CaseInsensitive); };
    if (setting.name.compare(word, Qt::CaseInsensitive) == 0)
        return 0;
    if (setting.name.startsWith(word, Qt::CaseInsensitive))
        return 1;
    if (has(setting.name))
        return 2;
    if (has(setting.caption))
        return 3;
    if (setting.unit.compare(word, Qt::CaseInsensitive) == 0)
        return 4;
    if (has(setting.unit))
        return 5;
    if (has(setting.help))
        return 6;
    return has(setting.helpPage) ? fitOfHelpPage : -1;
}

} // namespace

QList<FindableSetting> findableSettings(const SettingFields &fields)
{
    QList<FindableSetting> all;
    for (const SettingField &field : fields.all()) {
        if (field.bits && (all.isEmpty() || all.last().parameter != field.parameter)) {
            const NamedSetting *whole = withoutCaptionOf(field.parameter);
            all.append({field.parameter, whole ? SettingFinder::tr(whole->caption) : field.parameter, QString(),
                        QString(), SettingFinder::tr("help only"), field.parameter, QString()});
        }
        all.append(findable(field));
    }
    return all;
}

QList<FindableSetting> findSettings(const QList<FindableSetting> &settings, const QString &text)
{
    const QStringList words = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    QList<QPair<int, FindableSetting>> found;
    for (const FindableSetting &setting : settings) {
        int sum = 0;
        for (const QString &word : words) {
            const int one = fit(setting, word);
            sum = one < 0 || sum < 0 ? -1 : sum + one;
        }
        if (sum >= 0)
            found.append({sum, setting});
    }
    std::stable_sort(found.begin(), found.end(), [](const auto &a, const auto &b) { return a.first < b.first; });
    QList<FindableSetting> result;
    for (const auto &[sum, setting] : qAsConst(found))
        result << setting;
    return result;
}

QString helpPlaceOf(const SettingFields &fields, const QString &name)
{
    QString file = QStringLiteral("Parameter_overrides.htm");
    const SettingField *field = fields.find(name);
    if (const NamedSetting *named = withoutCaptionOf(name))
        file = QLatin1String(named->helpFile);
    else if (field && field->page >= 0)
        file = QString::fromLatin1(pageTable()[std::size_t(field->page)].helpFile).section(QLatin1Char('/'), -1);
    return file + QLatin1Char('#') + name;
}

SettingFinder::SettingFinder(const SettingFields &fields, QWidget *parent)
    : QDialog(parent), m_settings(findableSettings(fields))
{
    setObjectName(QStringLiteral("settingFinder"));
    setWindowTitle(tr("Find a setting"));
    auto *layout = new QVBoxLayout(this);
    auto *label = new QLabel(tr("&Mnemonic, name, unit, or a word of the help:"), this);
    m_text = new QLineEdit(this);
    m_text->setObjectName(QStringLiteral("findText"));
    m_text->setClearButtonEnabled(true);
    label->setBuddy(m_text);
    m_list = new QListWidget(this);
    m_list->setObjectName(QStringLiteral("findList"));
    m_list->setAccessibleName(tr("Settings found"));
    m_list->setWordWrap(true);
    layout->addWidget(label);
    layout->addWidget(m_text);
    layout->addWidget(m_list, 1);
    m_text->installEventFilter(this);
    connect(m_text, &QLineEdit::textChanged, this, &SettingFinder::look);
    connect(m_text, &QLineEdit::returnPressed, this, &SettingFinder::choose);
    connect(m_list, &QListWidget::itemActivated, this, &SettingFinder::choose);
    resize(560, 400);
}

void SettingFinder::open(const std::function<bool(const QString &)> &lacks)
{
    m_lacks = lacks;
    readHelpPages();
    m_text->selectAll();
    look();
    show();
    raise();
    activateWindow();
    m_text->setFocus();
}

void SettingFinder::readHelpPages()
{
    if (m_hasHelpPages)
        return;
    m_hasHelpPages = true;
    const QHash<QString, QString> texts = offlineHelpTexts();
    for (FindableSetting &setting : m_settings)
        setting.helpPage = texts.value(setting.name);
}

void SettingFinder::look()
{
    m_list->clear();
    const QList<FindableSetting> found = findSettings(m_settings, m_text->text());
    for (const FindableSetting &setting : found) {
        const QString unit = setting.unit.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(setting.unit);
        const bool missing = m_lacks && m_lacks(setting.parameter);
        auto *item = new QListWidgetItem(missing ? tr("%1%2: not on this model").arg(setting.caption, unit)
                                                 : tr("%1%2: %3").arg(setting.caption, unit, setting.place),
                                         m_list);
        item->setData(Qt::UserRole, setting.name);
        item->setToolTip(setting.help);
    }
    if (found.isEmpty()) {
        auto *item = new QListWidgetItem(tr("No setting has these words"), m_list);
        item->setFlags(Qt::NoItemFlags);
    } else {
        m_list->setCurrentRow(0);
    }
}

void SettingFinder::choose()
{
    const QListWidgetItem *item = m_list->currentItem();
    const QString name = item ? item->data(Qt::UserRole).toString() : QString();
    if (name.isEmpty())
        return;
    accept();
    emit chosen(name);
}

// The arrow keys walk the list while the text keeps the keyboard.
bool SettingFinder::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_text && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        const int step = key == Qt::Key_Down ? 1 : key == Qt::Key_Up ? -1 : 0;
        if (step != 0) {
            m_list->setCurrentRow(std::clamp(m_list->currentRow() + step, 0, std::max(0, m_list->count() - 1)));
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}
