// Makes the pictures of the windows for the documentation: quillomat_pictures FOLDER SAMPLES_FOLDER
#include <QDir>
#include <iostream>

#include "qt/clear_boxes.h"
#include "window_fixture.h"

namespace quillomat {
namespace {

/// A name that may be seen on the pictures.
QString Books() {
  return QDir::temp().filePath(QStringLiteral("books"));
}

class Photographer {
 public:
  Photographer(ProgramOnDesktop& user, QString folder) : user_(user), folder_(std::move(folder)) {
    QDir().mkpath(Books());
  }
  Photographer(const Photographer&) = delete;
  Photographer& operator=(const Photographer&) = delete;
  Photographer(Photographer&&) = delete;
  Photographer& operator=(Photographer&&) = delete;
  ~Photographer() { QDir(Books()).removeRecursively(); }

  void TakeAll(const QString& samples) {
    MainForm& frmMain = user_.program.frmMain;
    user_.windows.Main().resize(1024, 700);
    Count(samples + "/harbour_en.txt");
    Save(user_.windows.Main(), "main-en");
    TakeTable("table-en", "sea");
    TakeStatistics("statistics-en");
    TakeOthers("en");
    user_.Click(frmMain.cmdLanguage);
    Count(samples + "/leuchtturm_de.txt");
    Save(user_.windows.Main(), "main-de");
    TakeTable("table-de", "");
    TakeOthers("de");
    user_.Click(frmMain.cmdLanguage);
    TakeRunning(samples);
    TakeMessage();
    TakeDark();
  }

 private:
  /// Counts a copy, whose path is the same on every machine.
  void Count(const QString& sample) {
    const QString copy = Books() + "/" + QFileInfo(sample).fileName();
    QFile::remove(copy);
    if (!QFile::copy(sample, copy)) std::cerr << "cannot copy " << FromQt(sample) << '\n';
    user_.program.Sources().ChooseText(FromQt(copy));
    user_.Click(user_.program.frmMain.cmdCountWords);
  }

  void TakeOthers(const QString& language) {
    user_.Click(user_.program.frmMain.cmdSetParameters);
    Save(user_.windows.Panel(), "parameters-" + language);
    user_.Click(user_.program.frmParams.cmdClose);
    user_.Click(user_.program.frmMain.cmdHelp);
    Save(user_.windows.Help(), "help-" + language);
    user_.Click(user_.program.frmHelp.cmdClose);
    user_.Click(user_.program.frmMain.cmdExport);
    Save(user_.windows.Export(), "export-" + language);
    user_.Click(user_.program.frmExport.cmdClose);
    TakeNotice(language);
  }

  /// A list of a part of the words, with the settings folded away.
  void TakeNotice(const QString& language) {
    const auto ignore = [this](const char* words) {
      user_.program.frmParams.txbWordsToIgnoreOrCount[0].SetText(words);
      user_.Click(user_.program.frmMain.cmdCountWords);
    };
    ignore("the and of der die das und");
    Save(user_.windows.Main(), "notice-" + language);
    user_.windows.Main().Fold().SetFolded(true);
    Save(user_.windows.Main(), "folded-" + language);
    user_.windows.Main().Fold().SetFolded(false);
    ignore("");
  }

  /// The table of words, filtered by the beginning of words unless that is "".
  void TakeTable(const QString& name, const QString& beginning) {
    MainWindowView& window = user_.windows.Main();
    window.Views().Show("table");
    auto* words = window.Table().findChild<QLineEdit*>();
    auto* kind = window.Table().findChild<QComboBox*>();
    kind->setCurrentIndex(static_cast<int>(FilterKind::kStartsWith));
    words->setText(beginning);
    Save(window, name);
    words->clear();
    kind->setCurrentIndex(0);
    window.Views().Show("text");
  }

  void TakeStatistics(const QString& name) {
    user_.windows.Main().Views().Show("statistics");
    Save(user_.windows.Main(), name);
    user_.windows.Main().Views().Show("text");
  }

  void TakeRunning(const QString& samples) {
    const QString path = Books() + "/library.txt";
    QFile library(path);
    if (!library.open(QIODevice::WriteOnly)) return;
    QFile sample(samples + "/harbour_en.txt");
    if (!sample.open(QIODevice::ReadOnly)) return;
    const QByteArray text = sample.readAll();
    for (int i = 0; i < 1500; ++i) library.write(text);
    library.close();
    user_.program.Sources().ChooseText(FromQt(path));
    boxes_.Answer(QMessageBox::No);
    QTimer::singleShot(60, [this] {
      Save(user_.windows.Main(), "running-en");
      user_.program.frmMain.cmdCountWords.PerformClick();
    });
    user_.Click(user_.program.frmMain.cmdCountWords);
  }

  void TakeMessage() {
    user_.Type(user_.program.frmMain.txbFile[0], FromQt(Books()) + "/no-such-book.txt");
    QTimer::singleShot(40, [this] {
      if (QWidget* box = QApplication::activeModalWidget()) Save(*box, "message-en");
    });
    boxes_.Pause(100);
    boxes_.Answer(QMessageBox::Ok);
    user_.Click(user_.program.frmMain.cmdCountWords);
  }

  void TakeDark() {
    QPalette dark(QColor(53, 53, 53), QColor(35, 35, 35));
    dark.setColor(QPalette::Link, QColor(100, 160, 255));
    QApplication::setPalette(dark);
    user_.program.Sources().ChooseText(FromQt(Books()) + "/harbour_en.txt");
    user_.Click(user_.program.frmMain.cmdCountWords);
    Save(user_.windows.Main(), "main-dark");
    user_.program.frmMain.optInFile.SetValue(true);
    user_.program.frmMain.txbFile[0].SetText("/books/another.txt");
    Save(user_.windows.Main(), "notice-dark");
    TakeTable("table-dark", "");
  }

  void Save(QWidget& window, const QString& name) {
    user_.Settle();
    const QString path = QDir(folder_).filePath(name + ".png");
    if (!window.grab().save(path)) std::cerr << "cannot write " << FromQt(path) << '\n';
  }

  ProgramOnDesktop& user_;
  QString folder_;
  BoxAnswerer boxes_;
};

}  // namespace
}  // namespace quillomat

int main(int argc, char** argv) {
  using namespace quillomat;
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  QApplication::setStyle(new ClearBoxes);
  if (argc != 3) {
    std::cerr << "usage: quillomat_pictures FOLDER SAMPLES_FOLDER\n";
    return 2;
  }
  const UserHome home;
  ProgramOnDesktop user;
  if (!user.Start()) return 1;
  Photographer(user, QString::fromLocal8Bit(argv[1])).TakeAll(QString::fromLocal8Bit(argv[2]));
  return 0;
}
