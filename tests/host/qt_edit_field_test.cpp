// The field of several lines on the desktop that people run.
#include <QApplication>
#include <QKeyEvent>
#include <QPlainTextEdit>

#include "host/controls.h"
#include "host/desktop_under_test.h"

namespace quill::host {
namespace {

class QtEditField : public testing::Test {
 protected:
  struct EditWindow final : Window {
    EditWindow() : Window({"edit", 300, 200, WindowStyle::Frame::kDocument, base::kWhite, false, true}) {
      Open();
    }
    EditField& field =
        AddControl<EditField>(nullptr, base::Rect{10, 20, 200, 100}, TextStyle(), base::kWhite);
  };

  QtUnderTest under_test_;
  EditWindow window_;
  EditField& field_ = window_.field;
  QWidget& shown_ = *QApplication::topLevelWidgets().front();
  QPlainTextEdit& widget_ = *shown_.findChild<QPlainTextEdit*>();
};

TEST_F(QtEditField, GivesBackWhatNobodyChanged) {
  std::string mebibyte;
  for (int at = 0; at < 1 << 20; ++at) mebibyte += static_cast<char>(at % 251);
  for (const std::string& bytes :
       {mebibyte, std::string("a\r\nb\nc\rd\r\n"), std::string("\xFF\0\xC3 \x8E", 5),
        std::string("\xEF\xBB\xBFmark\xE2\x80\xA8"), std::string()}) {
    field_.SetText(bytes);
    EXPECT_TRUE(field_.Text() == bytes) << bytes.substr(0, 20);
  }
}

TEST_F(QtEditField, KeepsTheRestWhenTheUserTypes) {
  const std::pair<const char*, const char*> rows[] = {
      {"", "x"},
      {"emoji \xF0\x9F\x98\x80", "emoji \xF0\x9F\x98\x80x"},
      {"no-break\xC2\xA0space", "no-break\xC2\xA0spacex"},
      {"\ttabs\t", "\ttabs\tx"},
      {"many\n\n lines \n", "many\n\n lines \nx"},
      {"DOS\r\n\r\nlines\r\n", "DOS\r\n\r\nlines\r\nx"},
      {"a\r\nmixture\nof\rlines", "a\nmixture\nof\nlinesx"},
      {"\xD2Mac Roman\xD3\x01", "\xE2\x80\x9CMac Roman\xE2\x80\x9D\xE2\x90\x81x"},
  };
  for (const auto& [given, typed] : rows) {
    field_.SetText(given);
    widget_.moveCursor(QTextCursor::End);
    QKeyEvent press(QEvent::KeyPress, Qt::Key_X, Qt::NoModifier, "x");
    QCoreApplication::sendEvent(&widget_, &press);
    EXPECT_EQ(field_.Text(), typed) << given;
  }
  EXPECT_EQ(widget_.toPlainText().toStdString(), rows[std::size(rows) - 1].second) << "as it is shown";
}

TEST_F(QtEditField, KeepsItsDistancesFromTheEdges) {
  for (const QSize& size : {QSize(400, 260), QSize(120, 130), QSize(300, 200)}) {
    shown_.resize(size);
    under_test_.Settle();
    EXPECT_EQ(widget_.geometry(), QRect(10, 20, size.width() - 100, size.height() - 100));
  }
}

}  // namespace
}  // namespace quill::host
