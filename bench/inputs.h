// What the measured programs read, in a folder that goes when the run is over.
#pragma once

#include <string>

#include "app/headless_program.h"
#include "platform/desktop.h"

namespace mardel {

class inputs {
 public:
  // `sources` is the root of the sources, for its samples; both end in "/".
  inputs(const std::string& program, const std::string& sources);
  inputs(const inputs&) = delete;
  inputs& operator=(const inputs&) = delete;
  ~inputs();

  const std::string& Program() const { return program_; }
  const std::string& Folder() const { return folder_; }
  const std::string& SamplesHome() const { return samples_home_; }
  // Of 30 generated libraries, and of the one that generated designs are made from.
  const std::string& LibrariesHome() const { return libraries_home_; }
  const std::string& LibraryHome() const { return library_home_; }
  std::string SampleDesign() const;

 private:
  std::string program_, folder_, samples_home_, libraries_home_, library_home_;
};

// With the built-in libraries and "synth0", which a design is generated from.
struct design_program {
  design_program();
  void Generate(std::size_t blocks);

  std::unique_ptr<text_metrics> measures;
  headless_program run;
  design document;
};

}  // namespace mardel
