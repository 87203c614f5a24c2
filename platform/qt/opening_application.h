// The toolkit's application, which hears of documents to open from a desktop such as macOS.
#pragma once

#include <QApplication>
#include <QFileOpenEvent>
#include <functional>
#include <string>
#include <utility>

#include "platform/qt/qt_text.h"

namespace mardel {

class opening_application : public QApplication {
 public:
  opening_application(int& argument_count, char** arguments,
                      std::function<void(const std::string& path)> open)
      : QApplication(argument_count, arguments), open_(std::move(open)) {}

 protected:
  bool event(QEvent* happened) override {
    if (happened->type() != QEvent::FileOpen) return QApplication::event(happened);
    open_(LocalPath(dynamic_cast<QFileOpenEvent*>(happened)->url()));
    return true;
  }

 private:
  std::function<void(const std::string& path)> open_;
};

}  // namespace mardel
