#include "platform/dateisync.h"

#include <io.h>

bool Synchronisiere(int datei) {
  return _commit(datei) == 0;
}
