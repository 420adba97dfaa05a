// The four screens: created on first use, kept until the end, and the moves between them.
#pragma once

#include <cstddef>
#include <memory>
#include <vector>

#include "screens/Context.h"
#include "screens/Moves.h"
#include "screens/Shared.h"

namespace lensbench {

class DrawingScreen;
class Form;
class Help;
class kelmo;
class moniaktina;
class eisagogiko;
class ElSahl;
class Steps;
struct ProgramState;

class Screens : public Moves {
 public:
  // What all screens are given stands outside; it must outlive them.
  Screens(Dialogs& dialogs, Clock& clock, Actions& actions);
  ~Screens() override;
  Screens(const Screens&) = delete;
  Screens& operator=(const Screens&) = delete;

  // Referring to a screen that does not exist yet creates it and runs its Form_Load first.
  lensbench::kelmo& kelmo();
  lensbench::moniaktina& moniaktina();
  lensbench::eisagogiko& eisagogiko();
  lensbench::ElSahl& ElSahl();

  void openSingleRay() override;
  void openLensMenu() override;
  void leaveSingleRay() override;
  void leaveLensMenu() override;
  void openIbnSahl() override;
  void drawIbnSahl() override;
  void leaveIbnSahl() override;
  [[noreturn]] void End() override;
  void undo() override;
  void redo() override;
  void help() override;
  void toggleFollow() override;
  void followIndex() override;
  light::Diafragma diafragma() override;

  // Puts a lesson, counted from 0, on its screen, as one step of the history.
  void startLesson(std::size_t number);

  // The screens that there are as a value to be kept, and as they were: with no action, box or
  // error, with waves at rest, and with the screens in front where something is different now.
  ProgramState state() const;
  void restore(const ProgramState& to);

  // From here on what a person does is a step that can be taken back.
  void startHistory();

  Shared& shared() noexcept { return shared_; }
  const Help& helpWindow() const noexcept { return *help_; }

 private:
  template <typename Screen>
  Screen& existing(std::unique_ptr<Screen>& screen);
  // Those that have been made.
  std::vector<DrawingScreen*> drawingScreens() const;
  // Says in the title of a drawing screen that it follows.
  void tellFollow(Form& screen) const;

  Shared shared_;
  Context context_;
  std::unique_ptr<Help> help_;
  std::unique_ptr<lensbench::kelmo> kelmo_;
  std::unique_ptr<lensbench::moniaktina> moniaktina_;
  std::unique_ptr<lensbench::eisagogiko> eisagogiko_;
  std::unique_ptr<lensbench::ElSahl> ElSahl_;
  std::unique_ptr<Steps> steps_;
};

// Start-up: prepares the Ibn Sahl screen and the lens menu without showing them, and shows the
// workbench.
void Main(Screens& screens);

}  // namespace lensbench
