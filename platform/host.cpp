#include "platform/host.h"

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <iterator>

#include "platform/files.h"

#ifdef __APPLE__
#include <mach-o/dyld.h>
#include <sys/sysctl.h>
#endif

namespace mardel {
namespace {

constexpr int kFirstLinuxCode = 1000;
constexpr int kFirstMacCode = 10000;
constexpr int kLaterWindows = 200;
constexpr int kLaterMac = 99999;
constexpr std::string_view kUnknownVersion = "Unknown version";
constexpr std::string_view kUnknownBrand = "Unknown CPU";

struct version_name {
  int code;
  std::string_view name;
};

constexpr version_name kVersionNames[] = {
    {5, "NT 3.51"},
    {10, "95"},
    {20, "NT 4"},
    {30, "98"},
    {40, "ME"},
    {50, "2000"},
    {60, "XP"},
    {65, "Server 2003"},
    {70, "Vista"},
    {75, "Server 2008"},
    {80, "7"},
    {85, "Server 2008 R2"},
    {90, "8"},
    {95, "Server 2012"},
    {100, "8.1"},
    {105, "Server 2012 R2"},
    {110, "10"},
    {120, "11"},
    {kLaterWindows, kUnknownVersion},
    {1000, "2.2"},
    {1100, "2.4"},
    {1200, "2.6"},
    {2000, "Linux"},  // kept: the family's name again, for every kernel since 3.0
    {10000, "10.0 Cheetah"},
    {10010, "10.1 Puma"},
    {10020, "10.2 Jaguar"},
    {10030, "10.3 Panther"},
    {10040, "10.4 Tiger"},
    {10050, "10.5 Leopard"},
    {10060, "10.6 Snow Leopard"},
    {10070, "10.7 Lion"},
    {10080, "10.8 Mountain Lion"},
    {10090, "10.9 Mavericks"},
    {10100, "10.10 Yosemite"},
    {10110, "10.11 El Capitan"},
    {10120, "10.12 Sierra"},
    {10130, "10.13 High Sierra"},
    {10140, "10.14 Mojave"},
    {10150, "10.15 Catalina"},
    {11000, "11 Big Sur"},
    {12000, "12 Monterey"},
    {13000, "13 Ventura"},
    {14000, "14 Sonoma"},
    {kLaterMac, kUnknownVersion},
};

const version_name* FindVersion(int code) {
  const auto* const found =
      std::find_if(std::begin(kVersionNames), std::end(kVersionNames),
                   [code](const version_name& version) { return version.code == code; });
  return found == std::end(kVersionNames) ? nullptr : found;
}

// The desktop release of each system version; servers have the same numbers.
struct windows_release {
  int major, minor, code;
};
constexpr windows_release kWindowsReleases[] = {
    {5, 0, 50}, {5, 1, 60}, {5, 2, 65},  {6, 0, 70},
    {6, 1, 80}, {6, 2, 90}, {6, 3, 100}, {10, 0, 110},
};

}  // namespace

std::string_view LineSeparator(host_kind host) {
  return host == host_kind::kMac || host == host_kind::kLinux ? "\n" : "\r\n";
}

int LinuxVersionCode(int kernel_major, int kernel_minor) {
  if (kernel_major == 2 && kernel_minor == 2) return 1000;
  if (kernel_major == 2 && kernel_minor == 4) return 1100;
  if (kernel_major == 2 && kernel_minor == 6) return 1200;
  return 2000;
}

// kept: 13 and later have no code of their own, although 13000 and 14000 have names.
int MacVersionCode(int major, int minor) {
  if (major == 10) return kFirstMacCode + 10 * (minor >= 0 && minor <= 15 ? minor : 9);
  if (major == 11 || major == 12) return 1000 * major;
  return kLaterMac;
}

int WindowsVersionCode(int major, int minor, int build) {
  constexpr int kFirstBuildOf11 = 22000;
  if (major == 10 && build >= kFirstBuildOf11) return 120;
  for (const windows_release& release : kWindowsReleases) {
    if (release.major == major && release.minor == minor) return release.code;
  }
  return kLaterWindows;
}

std::string SystemFamilyName(int version_code) {
  if (FindVersion(version_code) == nullptr) return "Your guess is as good as mine";
  if (version_code < kFirstLinuxCode) return "Windows";
  return version_code < kFirstMacCode ? "Linux" : "Apple Mac";
}

std::string SystemVersionName(int version_code) {
  const version_name* const version = FindVersion(version_code);
  return std::string(version == nullptr ? kUnknownVersion : version->name);
}

std::string BrandFromProcessorInformation(std::string_view text) {
  constexpr std::string_view kLabel = "model name";
  for (std::size_t start = 0; start < text.size();) {
    const std::size_t end = std::min(text.find('\n', start), text.size());
    std::string_view line = text.substr(start, end - start);
    start = end + 1;
    const std::size_t colon = line.find(':');
    if (!line.starts_with(kLabel) || colon == std::string_view::npos) continue;
    line.remove_prefix(colon + 1);
    line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
    return std::string(line);
  }
  return std::string(kUnknownBrand);
}

std::string ProgramFolder() {
  std::error_code unknown;
#ifdef __APPLE__
  char path[4096] = {};
  std::uint32_t size = sizeof path;
  if (_NSGetExecutablePath(path, &size) != 0) return {};
  const std::filesystem::path program = std::filesystem::canonical(path, unknown);
#else
  const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", unknown);
#endif
  return unknown ? std::string() : (program.parent_path() / "").string();
}

std::string ProcessorBrand() {
#ifdef __APPLE__
  char brand[1024] = {};
  std::size_t size = sizeof brand - 1;
  if (sysctlbyname("machdep.cpu.brand_string", brand, &size, nullptr, 0) != 0) {
    return std::string(kUnknownBrand);
  }
  const std::string_view text = brand;
  return std::string(text.substr(std::min(text.find_first_not_of(" \t"), text.size())));
#else
  return BrandFromProcessorInformation(ReadFile("/proc/cpuinfo").value_or(""));
#endif
}

}  // namespace mardel
