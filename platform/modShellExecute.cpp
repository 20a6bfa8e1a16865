#include "platform/modShellExecute.h"

#include "platform/modExistiertDatei.h"
#include "platform/pfade.h"
#include "platform/system.h"

void OeffneHilfe(const QString &name) {
  const QString pfad = MitBackslash(Ressourcenordner()) + name;
  if (ExistiertDatei(pfad))
    OeffneDokument(pfad);
}
