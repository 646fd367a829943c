#include "host/headless/HostSession.h"

#include "design/MemberCategoryRegistry.h"
#include "host/headless/DialogAnswer.h"
#include "host/headless/GridPicture.h"
#include "host/headless/HostDesigner.h"
#include "host/headless/Modules.h"
#include "host/headless/PackageScope.h"
#include "host/headless/RowWriters.h"
#include "platform/LocaleSettings.h"
#include "platform/ModalSeam.h"
#include "runtime/DesignFile.h"

namespace Tarvo {

namespace {

// The host's text settings for the package while a run lasts: the ones of the named locale.
class THostFormatScope {
public:
  explicit THostFormatScope(const String& ALocale) : FSaved(FormatSettings) {
    if (ALocale.empty()) return;
    if (!TryFormatSettingsOf(ALocale, FormatSettings)) throw EInspectError("unknown locale \"" + ALocale + "\"");
  }
  ~THostFormatScope() { FormatSettings = FSaved; }
  THostFormatScope(const THostFormatScope&) = delete;
  THostFormatScope& operator=(const THostFormatScope&) = delete;

private:
  TFormatSettings FSaved;
};

void Select(IDesigner& ADesigner, TComponent* ARoot, const std::vector<String>& ANames) {
  const TRef<IObjectArrayList> selection = New<TObjectArrayList>();
  for (const String& name : ANames) {
    TComponent* component = ARoot->FindComponent(name);
    if (!component) throw EInspectError("no component named \"" + name + "\" in the design");
    selection->Add(component);
  }
  if (ANames.empty()) {
    if (ARoot->ComponentCount() == 0) throw EInspectError("the design has no components");
    selection->Add(ARoot->Components(0));
  }
  ADesigner.SetSelection(selection);
}

// Text an editor can't take is dropped without a word (a fixed list lacks it, the converter
// refuses it), while every write ends in the designer's Modified: no notice, no write.
void SetValue(TRowModel& AInspector, const THostDesigner& ADesigner, const TInspectEdit& AEdit) {
  const Integer notices = ADesigner.ModifiedCount();
  AInspector.SetValue(AEdit.Path, AEdit.Text);
  if (ADesigner.ModifiedCount() == notices)
    throw EInspectError(AInspector.Find(AEdit.Path).Path() + ": \"" + AEdit.Text + "\" was not accepted");
}

// The dialog runs with the answer of the command line; an answer it takes writes, or it is
// reported as --set reports dropped text.
void RunDialog(TRowModel& AInspector, const THostDesigner& ADesigner, const TInspectEdit& AEdit) {
  const std::optional<String> answer = AEdit.Answered ? std::optional<String>(AEdit.Text) : std::nullopt;
  const TModalHandlerScope user([&](QDialog& ADialog) { return AnswerDialog(ADialog, answer); });
  const Integer notices = ADesigner.ModifiedCount();
  AInspector.Dialog(AEdit.Path);
  if (answer && ADesigner.ModifiedCount() == notices)
    throw EInspectError(AInspector.Find(AEdit.Path).Path() + ": \"" + *answer + "\" was not accepted");
}

// The headings of the categories, in the order they were first used.
std::vector<String> CategoryHeadings() {
  std::vector<String> headings;
  for (const TRef<IMemberCategoryInstance>& category : *GMemberCategories)
    headings.push_back(category->GetCategoryName());
  return headings;
}

} // namespace

String RunInspect(const TInspectOptions& AOptions, const TInspectPaths& APaths) {
  const THostFormatScope settings(AOptions.Locale);
  const TPackageScope package;
  TModulesScope modules;
  modules.Load(APaths.SampleModule);
  for (const String& path : AOptions.Modules) modules.Load(path);
  if (AOptions.ListClasses) return ClassesText(AOptions.Json);

  // The root goes before the modules that hold the classes of its components.
  const TOwnedObject<TComponent> root(TComponentHelper::CreateComponent(TComponent::ClassInfo(), nullptr, true, false));
  ReadDesignFile(AOptions.DesignFile.empty() ? APaths.SampleDesign : AOptions.DesignFile, root.get());
  const TRef<THostDesigner> designer = New<THostDesigner>(root.get());
  Select(*designer, root.get(), AOptions.Select);

  TRowModel inspector(designer);
  inspector.Refresh();
  for (const TInspectEdit& edit : AOptions.Edits) {
    if (edit.Kind == TInspectEdit::ekSet) SetValue(inspector, *designer, edit);
    else if (edit.Kind == TInspectEdit::ekClick) inspector.Click(edit.Path);
    else if (edit.Kind == TInspectEdit::ekDialog) RunDialog(inspector, *designer, edit);
    else inspector.ResetValue(edit.Path);
    inspector.Refresh();
  }
  if (!AOptions.Png.empty()) {
    WriteGridPicture(designer, AOptions);
    return String();
  }
  for (const String& path : AOptions.Expand) inspector.Expand(path);
  if (AOptions.ExpandAll) inspector.ExpandAll();
  if (AOptions.Values) {
    const std::vector<String> values = inspector.Values(*AOptions.Values);
    return AOptions.Json ? ValuesToJson(values) : ValuesToText(values);
  }
  std::vector<TInspectorRow> rows = inspector.Rows();
  if (!AOptions.Filter.empty()) {
    const TRef<IMatches> words = New<TWordsMatch>(AOptions.Filter);
    std::erase_if(rows, [&](const TInspectorRow& ARow) {
      return !words->Matches(ARow.Name + " " + ARow.DisplayName + " " + ARow.Value);
    });
  }
  if (AOptions.Json) return RowsToJson(rows);
  return AOptions.Categories ? RowsToCategoryText(rows, CategoryHeadings()) : RowsToText(rows);
}

} // namespace Tarvo
