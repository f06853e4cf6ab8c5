#include "qt/qt_desktop.h"

#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QInputDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStandardPaths>
#include <QVBoxLayout>
#include <utility>

#include "base/utf8.h"
#include "qt/path_of_url.h"
#include "qt/text_conversion.h"
#include "system/locale_info.h"
#include "system/paths.h"
#include "system/shell.h"

namespace quillomat {
namespace {

/// Of a window that shows lines.
constexpr QSize kUsualTextSize(640, 360);

QMessageBox::Icon IconOf(MessageIcon icon) {
  switch (icon) {
    case MessageIcon::kNone:
      return QMessageBox::NoIcon;
    case MessageIcon::kInformation:
      return QMessageBox::Information;
    case MessageIcon::kExclamation:
      return QMessageBox::Warning;
    case MessageIcon::kQuestion:
      return QMessageBox::Question;
    case MessageIcon::kCritical:
      return QMessageBox::Critical;
  }
  return QMessageBox::NoIcon;
}

struct ButtonSet {
  QMessageBox::StandardButtons buttons = QMessageBox::Ok;
  QMessageBox::StandardButton onEscape = QMessageBox::Ok;
};

ButtonSet ButtonsOf(MessageButtons buttons) {
  switch (buttons) {
    case MessageButtons::kOk:
      return {QMessageBox::Ok, QMessageBox::Ok};
    case MessageButtons::kOkCancel:
      return {QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Cancel};
    case MessageButtons::kYesNo:
      return {QMessageBox::Yes | QMessageBox::No, QMessageBox::No};
    case MessageButtons::kYesNoCancel:
      return {QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Cancel};
  }
  return {QMessageBox::Ok, QMessageBox::Ok};
}

MessageAnswer AnswerOf(int button) {
  switch (button) {
    case QMessageBox::Yes:
      return MessageAnswer::kYes;
    case QMessageBox::No:
      return MessageAnswer::kNo;
    case QMessageBox::Cancel:
      return MessageAnswer::kCancel;
    default:
      return MessageAnswer::kOk;
  }
}

MessageAnswer HarmlessAnswer(const MessageBox& box) {
  return box.noLoses ? MessageAnswer::kYes : AnswerOf(ButtonsOf(box.buttons).onEscape);
}

/// "*.*" means every file, also one without a point in its name.
QStringList NameFiltersOf(const std::string& filter) {
  QStringList filters;
  for (const FileFilter& part : SplitFileFilter(filter)) {
    const bool all = part.pattern == "*.*";
    QString description = ToQt(part.description);
    const auto bracket = description.lastIndexOf(QLatin1Char('('));
    if (bracket >= 0) description.truncate(bracket);
    const QString pattern = all ? QStringLiteral("*") : ToQt(part.pattern);
    filters.append(description.trimmed() + QStringLiteral(" (") + pattern + QLatin1Char(')'));
  }
  return filters;
}

/// The dialogs know no folder whose path is no text: they open in the nearest one above.
std::string FolderForDialogs(std::string folder) {
  while (!IsWellFormedUtf8(folder)) folder = FolderPartOf(folder);
  return folder;
}

void SetUpDialog(QFileDialog& shown, const FileDialog& dialog) {
  const bool saving = dialog.mode == FileDialog::Mode::kSave;
  shown.setWindowTitle(ToQt(dialog.title));
  shown.setAcceptMode(saving ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  shown.setFileMode(dialog.fileMustExist ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
  shown.setOption(QFileDialog::DontConfirmOverwrite, !dialog.promptBeforeOverwriting);
  shown.setNameFilters(NameFiltersOf(dialog.filter));
  const auto filters = SplitFileFilter(dialog.filter);
  if (saving && !filters.empty() && filters.front().pattern.starts_with("*.") &&
      filters.front().pattern != "*.*") {
    shown.setDefaultSuffix(ToQt(filters.front().pattern.substr(2)));
  }
  if (!dialog.folder.empty()) shown.setDirectory(ToQt(FolderForDialogs(dialog.folder)));
  shown.selectFile(ToQt(dialog.fileName));
}

/// Enter presses the default command: Cancel, until the answer is another one.
void KeepFromLosing(QInputDialog& shown) {
  auto* buttons = shown.findChild<QDialogButtonBox*>();
  if (buttons == nullptr) return;
  QPushButton* ok = buttons->button(QDialogButtonBox::Ok);
  QPushButton* cancel = buttons->button(QDialogButtonBox::Cancel);
  if (ok == nullptr || cancel == nullptr) return;
  cancel->setDefault(true);
  QObject::connect(&shown, &QInputDialog::textValueChanged, ok,
                   [ok, cancel, unchanged = shown.textValue()](const QString& text) {
                     (text == unchanged ? cancel : ok)->setDefault(true);
                   });
}

/// One in which Escape may be no answer.
class AnsweredBox final : public QMessageBox {
 public:
  AnsweredBox(QWidget* parent, bool takesEscape) : QMessageBox(parent), takesEscape_(takesEscape) {}

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() == Qt::Key_Escape && !takesEscape_) return;
    QMessageBox::keyPressEvent(event);
  }

 private:
  bool takesEscape_;
};

/// A box of few words would be narrower than its title.
void MakeRoomForTitle(QMessageBox& box) {
  constexpr int kSigns = 12;  // the commands of the frame take the room of so many
  auto* text = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
  if (text == nullptr) return;
  const QFontMetrics letters = box.fontMetrics();
  const int title =
      letters.horizontalAdvance(box.windowTitle()) + kSigns * letters.averageCharWidth();
  // A box of more words finds its own width.
  if (letters.size(0, box.text()).width() < title) text->setMinimumWidth(title);
}

/// Not every desktop's dialog hands out a text that means the same file.
std::string ChosenPath(const QFileDialog& shown) {
  const QList<QUrl> urls = shown.selectedUrls();
  return urls.isEmpty() ? std::string() : PathOfUrl(urls.constFirst());
}

}  // namespace

QtDesktop::QtDesktop() : callsFromThreads_(std::make_shared<CallsFromThreads>()) {}

QtDesktop::~QtDesktop() {
  callsFromThreads_->End();
}

/// Between two boxes no window is active.
QWidget* QtDesktop::BoxParent() const {
  if (QWidget* box = QApplication::activeModalWidget()) return box;
  if (QWidget* window = QApplication::activeWindow()) return window;
  // What is shown over a window that is hidden would be hidden with it.
  if (window_ == nullptr || window_->isVisible()) return window_;
  return window_->parentWidget();
}

std::string QtDesktop::DocumentsFolder() {
  const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  return FromQt(QDir::toNativeSeparators(QDir(documents).exists() ? documents : QDir::homePath()));
}

void QtDesktop::StopAsking() {
  asks_ = false;
  if (QWidget* menu = QApplication::activePopupWidget()) menu->close();
  for (QWidget* window : QApplication::topLevelWidgets()) {
    auto* box = qobject_cast<QDialog*>(window);
    if (box != nullptr && box->isVisible()) box->reject();
  }
}

MessageAnswer QtDesktop::ShowMessage(const MessageBox& box) {
  if (!asks_) return HarmlessAnswer(box);
  Repaint();
  AnsweredBox shown(BoxParent(), !box.noLoses);
  const ButtonSet set = ButtonsOf(box.buttons);
  shown.setWindowTitle(ToShown(box.title));
  shown.setTextFormat(Qt::PlainText);
  shown.setText(ToShownLines(box.text));
  shown.setIcon(IconOf(box.icon));
  shown.setStandardButtons(set.buttons);
  shown.setEscapeButton(set.onEscape);
  MakeRoomForTitle(shown);
  const MessageAnswer answer = AnswerOf(shown.exec());
  return asks_ ? answer : HarmlessAnswer(box);
}

void QtDesktop::ShowText(const std::string& lines, const std::string& title) {
  if (!asks_) return;
  Repaint();
  QDialog shown(BoxParent());
  shown.setWindowTitle(ToShown(title));
  auto* column = new QVBoxLayout(&shown);
  auto* text = new QPlainTextEdit(ToShownLines(lines), &shown);
  text->setReadOnly(true);
  text->setLineWrapMode(QPlainTextEdit::NoWrap);
  text->setTabChangesFocus(true);
  text->setAccessibleName(shown.windowTitle());
  column->addWidget(text);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, &shown);
  QObject::connect(buttons, &QDialogButtonBox::rejected, &shown, &QDialog::reject);
  column->addWidget(buttons);
  shown.resize(kUsualTextSize);
  shown.exec();
}

std::string QtDesktop::AskForText(const InputBox& box) {
  if (!asks_) return {};
  Repaint();
  QInputDialog shown(BoxParent());
  shown.setWindowTitle(ToShown(box.title));
  shown.setLabelText(ToShownLines(box.prompt));
  shown.setTextValue(ToQt(box.defaultAnswer));
  if (!box.okCaption.empty()) shown.setOkButtonText(ToQt(box.okCaption));
  if (!box.cancelCaption.empty()) shown.setCancelButtonText(ToQt(box.cancelCaption));
  constexpr int kWidth = 480;
  shown.resize(kWidth, shown.sizeHint().height());
  if (box.okLoses) KeepFromLosing(shown);  // the size is known, so its parts are there
  return shown.exec() == QDialog::Accepted ? FromQt(shown.textValue()) : std::string();
}

std::optional<std::string> QtDesktop::ChooseFile(const FileDialog& dialog) {
  if (!asks_) return std::nullopt;
  Repaint();
  QFileDialog shown(BoxParent());
  SetUpDialog(shown, dialog);
  if (shown.exec() != QDialog::Accepted || !asks_) return std::nullopt;
  std::string path = ChosenPath(shown);
  if (path.empty()) return std::nullopt;
  return path;
}

std::optional<std::string> QtDesktop::BrowseForFolder(const std::string& title,
                                                      const std::string& folder) {
  if (!asks_) return std::nullopt;
  Repaint();
  const QUrl opens = QUrl::fromLocalFile(ToQt(FolderForDialogs(folder)));
  std::string path = PathOfUrl(QFileDialog::getExistingDirectoryUrl(
      BoxParent(), ToQt(title), opens, QFileDialog::ShowDirsOnly, {QStringLiteral("file")}));
  if (path.empty()) return std::nullopt;
  return path;
}

/// Half a character in it is no byte of a path.
std::string QtDesktop::ClipboardText() {
  return QApplication::clipboard()->text().toStdString();
}

void QtDesktop::ClearClipboard() {
  QApplication::clipboard()->clear();
}

void QtDesktop::PutClipboardText(const std::string& text) {
  const QString lines = ToQtLines(text);
  // The clipboard takes the data over.
  QApplication::clipboard()->setMimeData(
      ClipboardDataOf(lines, HtmlTableOf(LinesOf(lines), cells_)).release());
}

void QtDesktop::Repaint() {
  if (showChanges_) showChanges_();
}

void QtDesktop::PumpEvents() {
  QApplication::processEvents();
}

bool QtDesktop::OpenWithShell(const std::string& documentOrAddress,
                              std::function<void()> onFailure) {
  return quillomat::OpenWithShell(
      documentOrAddress,
      [calls = callsFromThreads_, onFailure = std::move(onFailure)] { calls->Call(onFailure); });
}

std::string QtDesktop::DigitGroupSeparator() {
  if (!digitGroupSeparator_) digitGroupSeparator_ = quillomat::DigitGroupSeparator();
  return *digitGroupSeparator_;
}

}  // namespace quillomat
