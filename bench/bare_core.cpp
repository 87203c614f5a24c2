// mardel_bare_core: prints a line by the toolkit's core library.
#include <QString>
#include <iostream>

int main() {
  std::cout << QString("a line\n").toStdString();
}
