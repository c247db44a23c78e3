{ sample.pas - a form of two masked edits, with nothing but Windows and the unit ztedit: a due date and an amount. OK, or the Enter key,
  puts what was entered into the title. The three libraries stand beside the program. }
program sample;

{$IFDEF FPC}{$MODE DELPHI}{$ENDIF}
{$APPTYPE GUI}

uses
  Windows, Messages, ztedit;

const
  DueId = 101;
  AmountId = 102;
  HintId = 103;

var
  Heap: TSharedHeap;
  Due, Amount, Hint: HWND;

procedure MakeControls(Form: HWND);
var
  Setup: TZtSetup;
begin
  Setup := ZtSetup(DT_DATE, 'MM/DD/YYYY', ZTEO_MODERN or ZTEO_AUTOSKIP);
  Due := ZtCreate(Heap, Setup, Form, DueId, 20, 20, 120, 24);
  Setup := ZtSetup(DT_DECIMAL, '#,##0.00', ZTEO_MODERN or ZTEO_SPIN);
  Setup.Range := '0~99999';
  Amount := ZtCreate(Heap, Setup, Form, AmountId, 20, 54, 120, 24);
  CreateWindowA('button', 'OK', WS_CHILD or WS_VISIBLE or WS_TABSTOP or BS_DEFPUSHBUTTON, 20, 88, 60, 26, Form, IDOK, HInstance, nil);
  Hint := CreateWindowA('static', '', WS_CHILD or WS_VISIBLE, 20, 124, 240, 20, Form, HintId, HInstance, nil);
  SetFocus(Due);
end;

procedure ShowEntered(Form: HWND);
var
  DueText, AmountText, Title: AnsiString;
begin
  if ZTE_GetState(Due) <> ZTS_COMPLETE then
    SetFocus(Due)
  else if ZtGetText(Heap, Due, DueText) and ZtGetText(Heap, Amount, AmountText) then
  begin
    Title := 'Due ' + DueText + ', amount ' + AmountText;
    SetWindowTextA(Form, PAnsiChar(Title));
  end;
end;

{ A refused key is told in words; the answer takes the place of the beep. }
function ShowRefusal(LParam: LPARAM): LRESULT;
begin
  Result := 0;
  if ZtRejected(LParam) = nil then
    Exit;
  if ZtRejected(LParam)^.reason = ZTR_WRONG_KIND then
    SetWindowTextA(Hint, 'This does not belong here.')
  else
    SetWindowTextA(Hint, 'This cannot be entered.');
  Result := 1;
end;

function FormProc(Form: HWND; Msg: UINT; WParam: WPARAM; LParam: LPARAM): LRESULT; stdcall;
begin
  Result := 0;
  case Msg of
    WM_CREATE: MakeControls(Form);
    WM_COMMAND:
      if HIWORD(WParam) = ZTN_AUTOSKIP then
        SetFocus(GetNextDlgTabItem(Form, HWND(LParam), False))
      else if LOWORD(WParam) = IDOK then
        ShowEntered(Form);
    WM_NOTIFY: Result := ShowRefusal(LParam);
    WM_DESTROY: PostQuitMessage(0);
  else
    Result := DefWindowProcA(Form, Msg, WParam, LParam);
  end;
end;

var
  FormClass: WNDCLASSA;
  Form: HWND;
  Message: TMsg;
begin
  Heap := SharedHeapCreate;
  FillChar(FormClass, SizeOf(FormClass), 0);
  FormClass.lpfnWndProc := @FormProc;
  FormClass.hInstance := HInstance;
  FormClass.hbrBackground := COLOR_BTNFACE + 1;
  FormClass.lpszClassName := 'ztedit sample';
  RegisterClassA(FormClass);
  Form := CreateWindowA('ztedit sample', 'Invoice', WS_OVERLAPPEDWINDOW or WS_VISIBLE, 100, 100, 300, 200, 0, 0, HInstance, nil);
  while GetMessageA(Message, 0, 0, 0) do
    if not IsDialogMessageA(Form, Message) then
    begin
      TranslateMessage(Message);
      DispatchMessageA(Message);
    end;
  SharedHeapDestroy(Heap);
end.
