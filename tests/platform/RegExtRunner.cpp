// Registers the types as the game does whose folder it lies in: with the words of its two arguments.
#include <QCoreApplication>

#include "platform/FileTypes.h"

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  if (argc != 3) return 2;
  zorik::RegExt(argv[1], argv[2]);
}
