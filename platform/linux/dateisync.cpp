#include "platform/dateisync.h"

#include <unistd.h>

bool Synchronisiere(int datei) {
  return fsync(datei) == 0;
}
