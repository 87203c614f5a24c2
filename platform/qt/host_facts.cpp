#include <QOperatingSystemVersion>
#include <QSysInfo>
#include <QVersionNumber>

#include "platform/host.h"

namespace mardel {

int HostVersionCode() {
  const QOperatingSystemVersion system = QOperatingSystemVersion::current();
  switch (HostKind()) {
    case host_kind::kLinux: {
      const QVersionNumber kernel = QVersionNumber::fromString(QSysInfo::kernelVersion());
      return LinuxVersionCode(kernel.majorVersion(), kernel.minorVersion());
    }
    case host_kind::kMac:
      return MacVersionCode(system.majorVersion(), system.minorVersion());
    case host_kind::kWindows:
      return WindowsVersionCode(system.majorVersion(), system.minorVersion(),
                                system.microVersion());
    case host_kind::kOther:
      break;
  }
  return 0;
}

}  // namespace mardel
