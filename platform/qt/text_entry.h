// Fields and editors that hold only what an XML file can.
#pragma once

#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QValidator>
#include <string>

namespace mardel {

// Takes unstorable characters and line breaks out as they are typed or pasted.
class one_line_filter : public QValidator {
 public:
  using QValidator::QValidator;
  State validate(QString& typed, int& cursor) const override;
};

class text_field : public QLineEdit {
 public:
  text_field(const std::string& text, QWidget& parent);
  void SetText(const std::string& text);
  // As it was set, whatever it holds, unless it was edited.
  std::string Text() const;

 private:
  std::string given_;
  QString shown_;  // of it
};

// Of a text so long that the toolkit would take seconds and gigabytes to lay it out the editor
// shows the beginning and the end, takes no change, and gives the whole text back.
class text_editor : public QPlainTextEdit {
 public:
  text_editor(const std::string& text, QWidget& parent);
  void SetText(const std::string& text);
  // As it was set, or with line breaks as "\n" when it was edited.
  std::string Text() const;

 protected:
  void insertFromMimeData(const QMimeData* pasted) override;

 private:
  std::string given_;
  QString shown_;  // of it
};

}  // namespace mardel
