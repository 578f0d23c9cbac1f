#include "source/SourceSplitter.h"

#include <utility>

namespace tarnwick {

namespace {

const char namingConflict[] =
    "\nNaming conflict:\n\n"
    "The source file contains multiple public classes/interfaces.\n"
    "In this case, Tarnwick has to split the source file into multiple files,\n"
    "each containing only one class or interface and having the same name as its class.\n"
    "The name of your source file is the same as the name of a class or interface.\n"
    "It is therefore not possible to create a single class file with this name.\n"
    "\nRename the source file!";

}  // namespace

SourceSplitter::SourceSplitter(const Filename& source, std::function<bool()> maySplit)
    : source_(Tarnwickfile::unopened(source, FileMode::Undefined)), maySplit_(std::move(maySplit)), pieces_(source) {}

void SourceSplitter::run() {
  try {
    runPasses();
  } catch (const SplitPieces::CannotWriteE& failure) {
    throw CannotCompileE(failure.message);
  } catch (const Tarnwickfile::FileNotOpenE& failure) {
    throw CannotCompileE(failure.message + "\nCan't process file " + failure.file);
  } catch (const SourceReader::BadDataE& failure) {
    throw CannotCompileE(failure.message + "\nCan't process file " + failure.file);
  }
}

void SourceSplitter::runPasses() {
  pieces_.putBackLeftOvers();
  check();
  throwComplaints();
  collect();
  throwComplaints();
  pieces_.publish();
}

void SourceSplitter::check() {
  SourcePass pass(source_, SourcePass::Purpose::Check, pieces_, complaints_);
  pass.run();
  judge(pass);
}

void SourceSplitter::judge(const SourcePass& pass) {
  split_ = pass.publicTypes() > 1;
  const int sameName = pass.publicOfSameName() + pass.othersOfSameName();
  if (sameName > 1) complaints_ += "\nMultiple classesInterfaces have the same name as the source file.";
  if (split_ && sameName > 0) complaints_ += namingConflict;
  if (pass.publicTypes() == 1 && pass.publicOfSameName() == 0)
    complaints_ +=
        "\nJavac requires a class/interface with the attribute 'public' to have the same name as the source file.";
  // Deliberate: the question comes even if there are complaints, which are shown afterwards.
  if (split_ && !maySplit_()) throw DontWantToSplitE{};
  if (pass.types() == 0)
    complaints_ +=
        "There is neither a class nor an interface definition in the source file.\nIs it really a source file?";
}

void SourceSplitter::collect() {
  const auto purpose = split_ ? SourcePass::Purpose::Split : SourcePass::Purpose::CollectNames;
  SourcePass pass(source_, purpose, pieces_, complaints_);
  pass.run();
  fileNames_ = pass.fileNames();
}

void SourceSplitter::throwComplaints() const {
  if (!complaints_.empty()) throw CannotCompileE(source_.name().quotedNameWithExtension() + " :\n" + complaints_);
}

}  // namespace tarnwick
