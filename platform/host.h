// Facts about the host.
#pragma once

#include <string>
#include <string_view>

namespace mardel {

enum class host_kind { kLinux, kMac, kWindows, kOther };

// Paths end in "/"; "" when the system can't name the folder.
struct host_folders {
  std::string documents;
  std::string applications;
  std::string home;
};

host_kind HostKind();
// What ends a line of text there.
std::string_view LineSeparator(host_kind host);
host_folders HostFolders();

// Where the running program's file is, links followed; as above.
std::string ProgramFolder();

// The operating system as one number: 5 to 200 Windows, 1000 to 2000 Linux, 10000 and above macOS;
// 0 for any other.
int HostVersionCode();
int LinuxVersionCode(int kernel_major, int kernel_minor);
int MacVersionCode(int major, int minor);
int WindowsVersionCode(int major, int minor, int build);

// "Windows", "Linux", "Apple Mac", or a shrug for an unknown code.
std::string SystemFamilyName(int version_code);
// "Unknown version" for a code without a name.
std::string SystemVersionName(int version_code);

// The processor's name as its maker writes it, or "Unknown CPU".
std::string ProcessorBrand();
// The same from Linux's processor information, lines of "name : value".
std::string BrandFromProcessorInformation(std::string_view text);

}  // namespace mardel
