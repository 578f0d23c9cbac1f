// The least that a window of the toolkit takes: a dialog with a line to type in and two buttons.
#include <wx/wx.h>

namespace {

class Application : public wxApp {
 public:
  bool OnInit() override {
    auto* const dialog = new wxDialog(nullptr, wxID_ANY, "Bare");
    auto* const rows = new wxBoxSizer(wxVERTICAL);
    rows->Add(new wxTextCtrl(dialog, wxID_ANY), wxSizerFlags().Expand().Border());
    rows->Add(dialog->CreateButtonSizer(wxOK | wxCANCEL), wxSizerFlags().Border());
    dialog->SetSizerAndFit(rows);
    dialog->Show();
    return true;
  }
};

}  // namespace

wxIMPLEMENT_APP(Application);
