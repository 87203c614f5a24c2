#include <QDir>
#include <QOperatingSystemVersion>
#include <QStandardPaths>
#include <QSysInfo>
#include <QVersionNumber>

#include "platform/host.h"

using namespace Qt::StringLiterals;

namespace mardel {
namespace {

std::string FolderPath(const QString& folder) {
  if (folder.isEmpty() || folder.endsWith(u'/')) return folder.toStdString();
  return folder.toStdString() + "/";
}

}  // namespace

host_kind HostKind() {
  const QString kernel = QSysInfo::kernelType();
  if (kernel == "linux"_L1) return host_kind::kLinux;
  if (kernel == "darwin"_L1) return host_kind::kMac;
  return kernel == "winnt"_L1 ? host_kind::kWindows : host_kind::kOther;
}

host_folders HostFolders() {
  host_folders folders;
  folders.applications = HostKind() == host_kind::kLinux ? "/opt/" : "/Applications/";
  // Without the variable the toolkit would take the file system's root for the user's home.
  if (qEnvironmentVariableIsEmpty("HOME")) return folders;
  folders.home = FolderPath(QDir::homePath());
  folders.documents =
      FolderPath(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
  return folders;
}

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
