// Loaded before a program of the toolkit (LD_PRELOAD), it ends the program when its first window is painted
// and handed to the window system.
#include <dlfcn.h>
#include <unistd.h>

#include <QBackingStore>

void QBackingStore::flush(const QRegion& region, QWindow* window, const QPoint& offset) {
  using Flush = void (*)(QBackingStore*, const QRegion&, QWindow*, const QPoint&);
  constexpr const char* kNom = "_ZN13QBackingStore5flushERK7QRegionP7QWindowRK6QPoint";
  reinterpret_cast<Flush>(dlsym(RTLD_NEXT, kNom))(this, region, window, offset);
  _exit(0);
}
