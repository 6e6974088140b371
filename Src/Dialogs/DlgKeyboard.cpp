#include "Dialogs/DlgKeyboard.h"

#include "Config.h"
#include "Dialogs/DlgNameList.h"
#include "Dialogs/DlgShared.h"
#include "RRx/RRFile.h"
#include "ui_DlgKeyboard.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QMouseEvent>
#include <QRegularExpression>
#include <QStyle>
#include <QStyledItemDelegate>

namespace {

/// What there is room for between the line and the upper edge of the screen.
constexpr int offeredRows = 2;

const QRegularExpression keyName(QStringLiteral("^button\\d+$"));

}

DlgKeyboard::DlgKeyboard(const QString& title)
    : QDialog(DlgShared::Parent(), Qt::FramelessWindowHint), ui(new Ui_DlgKeyboard)
{
    ui->setupUi(this);
    ui->headerTxt->setText(title);
    DlgShared::Center(*this);
    MarkWords();
    for (const QPushButton* key : findChildren<QPushButton*>(keyName)) {
        connect(key, &QPushButton::clicked, this, &DlgKeyboard::OnKeyButton);
    }
    connect(ui->buttonClr, &QPushButton::clicked, this, &DlgKeyboard::OnEditButton);
    connect(ui->buttonDel, &QPushButton::clicked, this, &DlgKeyboard::OnEditButton);
    connect(ui->buttonList, &QPushButton::clicked, this, &DlgKeyboard::OnListButton);
    connect(ui->buttonLeft, &QPushButton::clicked, this, &DlgKeyboard::OnCursorButton);
    connect(ui->buttonRight, &QPushButton::clicked, this, &DlgKeyboard::OnCursorButton);
    connect(ui->buttonOk, &QPushButton::clicked, this, &DlgKeyboard::OnExitButton);
    connect(ui->buttonCancel, &QPushButton::clicked, this, &DlgKeyboard::OnExitButton);
}

DlgKeyboard::~DlgKeyboard() = default;

bool DlgKeyboard::Show(const QString& title, QString& word, int maxLetter)
{
    DlgKeyboard dialog(title);
    const RR::String path = RR::PATH_Merge(CFG::MeaNameListPath, CFG::MeaNameListFile);
    // Without a file there is nothing to offer yet. One that can't be read may hold names all the same.
    const bool replaceable = DlgNameList::LoadNameList(path, dialog.nameList) || !RR::FILE_IsPresent(path);
    dialog.ui->lineEdit->setText(word);
    dialog.SetUpCompleter(maxLetter);
    dialog.ui->lineEdit->setMaxLength(maxLetter);
    if (dialog.exec() != Accepted) {
        return false;
    }

    word = dialog.ui->lineEdit->text();
    QStringList& names = dialog.nameList;
    names.removeOne(word);
    names.prepend(word);
    while (names.size() > DlgNameList::maxNames) {
        names.removeLast();
    }
    if (replaceable) {
        (void)DlgNameList::SaveNameList(path, names);
    } else {
        RR::Log("[ZARN] Namelist file can't be read and stays as it is.\n");
    }
    return true;
}

void DlgKeyboard::SetUpCompleter(int maxLetter)
{
    // What doesn't fit into the line isn't offered, however long an imported name is.
    QStringList offered;
    for (const QString& name : nameList) {
        offered.append(name.left(maxLetter));
    }
    // The order in which the completer searches, which ignores case.
    offered.sort(Qt::CaseInsensitive);
    offered.removeDuplicates();

    QCompleter* completer = new QCompleter(offered, this);
    completer->setCompletionMode(QCompleter::PopupCompletion);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    completer->setModelSorting(QCompleter::CaseInsensitivelySortedModel);
    completer->setMaxVisibleItems(offeredRows);
    QAbstractItemView* popup = completer->popup();
    popup->setStyleSheet(styleSheet());
    popup->setObjectName(QStringLiteral("offeredNames"));
    popup->setFont(ui->lineEdit->font());
    // The completer's own delegate doesn't follow the style sheet, whose rows are high enough for a finger.
    popup->setItemDelegate(new QStyledItemDelegate(popup));
    popup->installEventFilter(this);
    ui->lineEdit->setCompleter(completer);
}

void DlgKeyboard::MarkWords()
{
    for (QPushButton* key : findChildren<QPushButton*>(keyName)) {
        const bool holdsWord = key->text().size() > 1;
        if (key->property("holdsWord").toBool() != holdsWord) {
            key->setProperty("holdsWord", holdsWord);
            key->style()->unpolish(key);
            key->style()->polish(key);
        }
    }
}

void DlgKeyboard::OfferNames()
{
    // The line itself offers names only for keys of a real keyboard.
    QCompleter* completer = ui->lineEdit->completer();
    QWidget* popup = completer->popup();
    if (ui->lineEdit->text().isEmpty()) {
        popup->hide();
        return;
    }
    completer->setCompletionPrefix(ui->lineEdit->text());
    completer->complete();
    // Below the line it would hide the keys.
    popup->move(ui->lineEdit->mapToGlobal(QPoint(0, -popup->height())));
}

bool DlgKeyboard::eventFilter(QObject* watched, QEvent* event)
{
    const bool press = event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick;
    const QWidget* popup = qobject_cast<QWidget*>(watched);
    if (press && popup) {
        const QPoint place = static_cast<QMouseEvent*>(event)->globalPosition().toPoint();
        QPushButton* button = qobject_cast<QPushButton*>(childAt(mapFromGlobal(place)));
        if (button && !popup->geometry().contains(place)) {
            // Queued, since the click may close the pop-up that is handling this touch.
            QMetaObject::invokeMethod(button, &QPushButton::click, Qt::QueuedConnection);
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

void DlgKeyboard::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        MarkWords();
    }
    QDialog::changeEvent(event);
}

void DlgKeyboard::OnKeyButton()
{
    const QPushButton* key = qobject_cast<QPushButton*>(sender());
    ui->lineEdit->insert(key == ui->button501 ? QStringLiteral(" ") : key->text());
    OfferNames();
}

void DlgKeyboard::OnEditButton()
{
    if (sender() == ui->buttonClr) {
        ui->lineEdit->clear();
    } else {
        ui->lineEdit->backspace();
    }
    OfferNames();
}

void DlgKeyboard::OnCursorButton()
{
    if (sender() == ui->buttonLeft) {
        ui->lineEdit->cursorBackward(false, 1);
    } else {
        ui->lineEdit->cursorForward(false, 1);
    }
}

void DlgKeyboard::OnListButton()
{
    ui->lineEdit->completer()->popup()->hide();
    QString word;
    if (DlgNameList::Show(nameList, word)) {
        ui->lineEdit->setText(word);
    }
}

void DlgKeyboard::OnExitButton()
{
    if (sender() == ui->buttonOk) {
        accept();
    } else {
        reject();
    }
}
