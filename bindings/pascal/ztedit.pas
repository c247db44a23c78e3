{ ztedit.pas - masked edit controls for Free Pascal and Delphi: what ztedit.h, ztshared.h and ztdecimal.h declare, and below that a few
  functions that take and give strings and dates. The contracts of the functions stand in the headers.

  Nothing to link: ztedit050.dll, ztshared.dll and ztdecimal.dll are loaded with the program. }
unit ztedit;

{$IFDEF FPC}
  {$MODE DELPHI}
  {$PACKRECORDS C}
{$ELSE}
  {$ALIGN 8}
{$ENDIF}

interface

uses
  Windows;

const
  ZTEDIT_CLASS = 'ZTEDIT050';

  ZTEDIT_VERSION_MAJOR = 0;
  ZTEDIT_VERSION_MINOR = 5;
  ZTEDIT_VERSION_PATCH = 0;
  ZTEDIT_VERSION = $000500;

  { Data types }
  DT_STRING = 1;
  DT_NUMBER = 2;
  DT_DATE = 3;
  DT_TIME = 4;
  DT_DATETIME = 5;
  DT_DECIMAL = 6;

  DATETIME_NO_DATE = -32767;
  DATETIME_NO_TIME = -1;
  DATETIME_KIND_BOTH = 1;
  DATETIME_KIND_DATE = 2;
  DATETIME_KIND_TIME = 3;

  SHARED_FORMAT_SIZE = 256;

  { TFormatResult.formatFlags }
  FORMAT_DONE = $0001;
  FORMAT_HAS_LITERALS = $4000;
  FORMAT_LITERAL_AFTER = $8000;

  SPINSTYLE_PICKLIST = $10000000;
  SPINSTYLE_CODETABLE = $08000000;

  { TEditInitParams.options }
  ZTEO_AUTOSKIP = $1;
  ZTEO_SPIN = $2;
  ZTEO_CODE_PICK = $4;
  ZTEO_CODE_DISPLAY = $8;
  ZTEO_MODERN = $10;

  { ZTE_GetState }
  ZTS_EMPTY = 0;
  ZTS_INCOMPLETE = 1;
  ZTS_INVALID = 2;
  ZTS_OUT_OF_RANGE = 3;
  ZTS_COMPLETE = 4;

  { Why something was refused }
  ZTR_WRONG_KIND = 1;
  ZTR_OUT_OF_BOUNDS = 2;
  ZTR_FULL = 3;
  ZTR_READ_ONLY = 4;
  ZTR_DOES_NOT_FIT = 5;
  ZTR_IN_DOUBT = 6;
  ZTR_DOES_NOT_EXIST = 7;
  ZTR_NO_SUCH_ENTRY = 8;
  ZTR_END_OF_RANGE = 9;
  ZTR_NOT_IN_CODE_PAGE = 10;

  { ZTE_GetLastProblem }
  ZTP_NONE = 0;
  ZTP_NO_PARAMETERS = 1;
  ZTP_NO_HEAP = 2;
  ZTP_FOREIGN_HEAP = 3;
  ZTP_NOT_SUBCLASSED = 4;
  ZTP_WIDE_TEXTS = 5;
  ZTP_DATA_TYPE = 6;
  ZTP_MASK = 7;

  { ZTE_CheckMask }
  ZTM_FITS = 0;
  ZTM_DATA_TYPE = 1;
  ZTM_EMPTY = 2;
  ZTM_TOO_LONG = 3;
  ZTM_ESCAPE = 4;
  ZTM_KEYWORD = 5;
  ZTM_OUT_OF_PLACE = 6;
  ZTM_TWICE = 7;
  ZTM_FIELD_LENGTH = 8;
  ZTM_EXCLUDED = 9;
  ZTM_FIELD_MISSING = 10;
  ZTM_NO_DIGIT = 11;

  { WM_COMMAND }
  ZTN_AUTOSKIP = $0903;
  { WM_NOTIFY }
  ZTN_REJECTED = $0904;
  ZTN_STATECHANGED = $0905;

type
  TSharedHeap = Pointer;
  TSharedList = Pointer;

  PDateTimeValue = ^TDateTimeValue;
  TDateTimeValue = record
    microsecond: Cardinal;
    year: SmallInt;
    month: ShortInt;
    day: ShortInt;
    hour: ShortInt;
    minute: ShortInt;
    second: ShortInt;
    spare: ShortInt;
  end;

  PDecimalValue = ^TDecimalValue;
  TDecimalValue = record
    reserved: Word;
    scale: Byte;
    sign: Byte;
    hi32: Cardinal;
    lo64: UInt64;
  end;

  PEditInitParams = ^TEditInitParams;
  TEditInitParams = record
    heap: TSharedHeap;
    heapFlags: Cardinal;
    reserved: Cardinal;
    maskText: PAnsiChar;
    dataType: Integer;
    initialData: PAnsiChar;
    spinRangeText: PAnsiChar;
    spinIncrement: Cardinal;
    codeTableText: PAnsiChar;
    options: Cardinal;
  end;

  PFormatResult = ^TFormatResult;
  TFormatResult = record
    text: PAnsiChar;
    formatFlags: Cardinal;
    firstFieldPos: Integer;
  end;

  { The system's record as C has it, for Windows units whose own is another one. }
  TNMHDR = record
    hwndFrom: HWND;
    idFrom: UINT_PTR;
    code: Cardinal;
  end;

  PZTNotifyRejected = ^TZTNotifyRejected;
  TZTNotifyRejected = record
    hdr: TNMHDR;
    reason: Integer;
    position: Integer;
    character: Integer;
  end;

  PZTNotifyState = ^TZTNotifyState;
  TZTNotifyState = record
    hdr: TNMHDR;
    was: Integer;
    is_: Integer;
  end;

  PSharedHeapWatcher = ^TSharedHeapWatcher;
  TSharedHeapEnding = procedure(watcher: PSharedHeapWatcher); stdcall;
  TSharedHeapWatcher = record
    ending: TSharedHeapEnding;
    previous: PSharedHeapWatcher;
    next: PSharedHeapWatcher;
  end;

const
  EditLibrary = 'ztedit050.dll';
  SharedLibrary = 'ztshared.dll';
  DecimalLibrary = 'ztdecimal.dll';

{ ---- ztedit.h ---- }

function ZTE_SuperEditWndProc(hwnd: HWND; msg: Cardinal; wParam: WPARAM; lParam: LPARAM): LRESULT; stdcall; external EditLibrary;
function ZTE_Initialize: Cardinal; stdcall; external EditLibrary;
function ZTE_CheckMask(mask: PAnsiChar; dataType: Integer; position: PInteger): Integer; stdcall; external EditLibrary;
function ZTE_GetLastProblem(hwnd: HWND): Integer; stdcall; external EditLibrary;
function ZTE_Init(hwnd: HWND; setup: PEditInitParams): Integer; stdcall; external EditLibrary;
procedure ZTE_SetAutoskip(hwnd: HWND; enable: Cardinal); stdcall; external EditLibrary;
procedure ZTE_UtilSetFormatRect(hwnd: HWND); stdcall; external EditLibrary;
function ZTE_FmtSetMask(hwnd: HWND; mask: PAnsiChar; dataType: Integer): Integer; stdcall; external EditLibrary;
function ZTE_FmtSetData(hwnd: HWND; data: Pointer): Integer; stdcall; external EditLibrary;
function ZTE_FmtSetDataString(hwnd: HWND; text: PAnsiChar): Integer; stdcall; external EditLibrary;
function ZTE_FmtGetData(hwnd: HWND): Pointer; stdcall; external EditLibrary;
function ZTE_FmtGetDataType(hwnd: HWND): Word; stdcall; external EditLibrary;
function ZTE_FmtFormatData(hwnd: HWND; data: Pointer): PFormatResult; stdcall; external EditLibrary;
function ZTE_FmtUnformatData(hwnd: HWND; text: PAnsiChar): Pointer; stdcall; external EditLibrary;
function ZTE_SetModern(hwnd: HWND; enable: Integer): Integer; stdcall; external EditLibrary;
function ZTE_GetState(hwnd: HWND): Integer; stdcall; external EditLibrary;
function ZTE_TrySetDataString(hwnd: HWND; text: PAnsiChar): Integer; stdcall; external EditLibrary;
function ZTE_GetDataString(hwnd: HWND): PAnsiChar; stdcall; external EditLibrary;
procedure ZTE_SetSpin(hwnd: HWND; increment: Cardinal; range: PAnsiChar; codeTable: PAnsiChar; style: Cardinal);
  stdcall; external EditLibrary;
procedure ZTE_CreateSpin(hwnd: HWND); stdcall; external EditLibrary;
procedure ZTE_DestroySpin(hwnd: HWND); stdcall; external EditLibrary;
procedure ZTE_PaintSpin(hwnd: HWND; dc: HDC; rect: PRect); stdcall; external EditLibrary;
function ZTE_PaintSpinOnce(rect: PRect; dc: HDC): SmallInt; stdcall; external EditLibrary;
function ZTE_GetSpinWidth(hwnd: HWND; rect: PRect): SmallInt; stdcall; external EditLibrary;
procedure ZTE_SetSpinBkColor(hwnd: HWND; colour: Cardinal); stdcall; external EditLibrary;
function ZTE_SpinDateRange(hwnd: HWND; value: PDateTimeValue; text: PAnsiChar): SmallInt; stdcall; external EditLibrary;
function ZTE_SpinRangeCompare(hwnd: HWND; first: Pointer; second: Pointer): SmallInt; stdcall; external EditLibrary;
function ZTE_SpinWndProc(hwnd: HWND; msg: Cardinal; wParam: WPARAM; lParam: LPARAM): LRESULT; stdcall; external EditLibrary;
function WEP(argument: Integer): Integer; stdcall; external EditLibrary;

{ ---- ztshared.h ---- }

function SharedHeapCreate: TSharedHeap; stdcall; external SharedLibrary;
procedure SharedHeapDestroy(heap: TSharedHeap); stdcall; external SharedLibrary;
function SharedHeapIsAlive(heap: TSharedHeap): Integer; stdcall; external SharedLibrary;
procedure SharedHeapWatch(heap: TSharedHeap; watcher: PSharedHeapWatcher); stdcall; external SharedLibrary;
procedure SharedHeapUnwatch(heap: TSharedHeap; watcher: PSharedHeapWatcher); stdcall; external SharedLibrary;
function SharedHeapBlockCount(heap: TSharedHeap): Cardinal; stdcall; external SharedLibrary;
function SharedHeapAlloc(heap: TSharedHeap; size: Cardinal; flags: Cardinal): Pointer; stdcall; external SharedLibrary;
function SharedHeapRealloc(heap: TSharedHeap; block: Pointer; size: Cardinal; flags: Cardinal): Pointer;
  stdcall; external SharedLibrary;
procedure SharedHeapFree(heap: TSharedHeap; block: Pointer); stdcall; external SharedLibrary;
function SharedHeapStrDup(heap: TSharedHeap; text: PAnsiChar; flags: Cardinal): PAnsiChar; stdcall; external SharedLibrary;
function SharedStrCopy(destination: PAnsiChar; source: PAnsiChar): PAnsiChar; stdcall; external SharedLibrary;
function SharedCharConvertOne(character: Integer): Integer; stdcall; external SharedLibrary;
function SharedCharConvertTwo(character: Integer): Integer; stdcall; external SharedLibrary;
function SharedIsNumber(text: PAnsiChar): Integer; stdcall; external SharedLibrary;
function SharedListCreate(heap: TSharedHeap; flags: Cardinal): TSharedList; stdcall; external SharedLibrary;
procedure SharedListDestroy(list: TSharedList); stdcall; external SharedLibrary;
procedure SharedListAppend(list: TSharedList; element: Pointer); stdcall; external SharedLibrary;
function SharedListFirst(list: TSharedList): Pointer; stdcall; external SharedLibrary;
function SharedListLast(list: TSharedList): Pointer; stdcall; external SharedLibrary;
function SharedListNext(list: TSharedList): Pointer; stdcall; external SharedLibrary;
function SharedListPrev(list: TSharedList): Pointer; stdcall; external SharedLibrary;
function SharedListCurrent(list: TSharedList): Pointer; stdcall; external SharedLibrary;
function SharedListTell(list: TSharedList): Integer; stdcall; external SharedLibrary;
procedure SharedListSeek(list: TSharedList; position: Integer); stdcall; external SharedLibrary;
function SharedParseDateTime(value: PDateTimeValue; text: PAnsiChar; kind: Integer): Integer; stdcall; external SharedLibrary;
procedure SharedDateTimeNow(value: PDateTimeValue); stdcall; external SharedLibrary;
function SharedCompileFormat(compiled: Pointer; format: PAnsiChar; size: Integer): Integer; stdcall; external SharedLibrary;
function SharedFormatDouble(output: PAnsiChar; size: Integer; compiled: Pointer; value: Double; flags: Cardinal): Integer;
  stdcall; external SharedLibrary;
function SharedFormatDecimal(output: PAnsiChar; size: Integer; compiled: Pointer; value: PDecimalValue; flags: Cardinal): Integer;
  stdcall; external SharedLibrary;
procedure SharedReadRegionalSettings; stdcall; external SharedLibrary;

{ ---- ztdecimal.h ---- }

function DecFromString(destination: PDecimalValue; text: PAnsiChar; decimalPlaces: Integer): PDecimalValue;
  stdcall; external DecimalLibrary;
function DecAdd(destination: PDecimalValue; first: PDecimalValue; second: PDecimalValue): PDecimalValue;
  stdcall; external DecimalLibrary;
function DecSubtract(destination: PDecimalValue; first: PDecimalValue; second: PDecimalValue): PDecimalValue;
  stdcall; external DecimalLibrary;
function DecDivide(destination: PDecimalValue; first: PDecimalValue; second: PDecimalValue): PDecimalValue;
  stdcall; external DecimalLibrary;
function DecCompare(first: PDecimalValue; second: PDecimalValue): SmallInt; stdcall; external DecimalLibrary;
function DecFromUnsigned(destination: PDecimalValue; number: Cardinal): PDecimalValue; stdcall; external DecimalLibrary;
function DecSetZero(destination: PDecimalValue): PDecimalValue; stdcall; external DecimalLibrary;
function DecCopy(destination: PDecimalValue; source: PDecimalValue): PDecimalValue; stdcall; external DecimalLibrary;

{ ---- With strings and dates of the language ---- }

type
  { What a control shall be; zeroed by ZtSetup. }
  TZtSetup = record
    DataType: Integer;
    Mask: AnsiString;
    Initial: AnsiString;
    Range: AnsiString;
    Increment: Cardinal;
    Codes: AnsiString;
    Options: Cardinal;
  end;

function ZtSetup(DataType: Integer; const Mask: AnsiString; Options: Cardinal): TZtSetup;

{ A new child window; 0 when there is none. }
function ZtCreate(Heap: TSharedHeap; const Setup: TZtSetup; Parent: HWND; Id, X, Y, Width, Height: Integer): HWND;

{ Configures a window of the class ZTEDIT050: an item of a dialog template. }
function ZtAttach(Heap: TSharedHeap; const Setup: TZtSetup; Control: HWND): Boolean;

{ The value as canonical text; False for an incomplete or invalid value. The empty value is the empty text. }
function ZtGetText(Heap: TSharedHeap; Control: HWND; out Text: AnsiString): Boolean;

{ The date of a date or date-time control; False when there is none. }
function ZtGetDate(Heap: TSharedHeap; Control: HWND; out Year, Month, Day: Integer): Boolean;

{ 0 when the value is shown, else the ZTR_ reason; see ZTE_TrySetDataString. }
function ZtTrySetText(Control: HWND; const Text: AnsiString): Integer;

{ In the parent's WM_NOTIFY: the record behind lParam when it is one of these, else nil. }
function ZtRejected(LParam: LPARAM): PZTNotifyRejected;
function ZtStateChanged(LParam: LPARAM): PZTNotifyState;

implementation

const
  ControlStyle = WS_CHILD or WS_VISIBLE or WS_TABSTOP or ES_AUTOHSCROLL;

function TextOrNil(const Text: AnsiString): PAnsiChar;
begin
  if Text = '' then
    Result := nil
  else
    Result := PAnsiChar(Text);
end;

{ Borrows the texts of the setup. }
function ParamsOf(Heap: TSharedHeap; const Setup: TZtSetup): TEditInitParams;
begin
  FillChar(Result, SizeOf(Result), 0);
  Result.heap := Heap;
  Result.maskText := TextOrNil(Setup.Mask);
  Result.dataType := Setup.DataType;
  Result.initialData := TextOrNil(Setup.Initial);
  Result.spinRangeText := TextOrNil(Setup.Range);
  Result.spinIncrement := Setup.Increment;
  Result.codeTableText := TextOrNil(Setup.Codes);
  Result.options := Setup.Options;
end;

function ZtSetup(DataType: Integer; const Mask: AnsiString; Options: Cardinal): TZtSetup;
begin
  Result.DataType := DataType;
  Result.Mask := Mask;
  Result.Initial := '';
  Result.Range := '';
  Result.Increment := 1;
  Result.Codes := '';
  Result.Options := Options;
end;

function ZtCreate(Heap: TSharedHeap; const Setup: TZtSetup; Parent: HWND; Id, X, Y, Width, Height: Integer): HWND;
var
  Params: TEditInitParams;
begin
  ZTE_Initialize; { so that the library is loaded, which brings the class }
  Params := ParamsOf(Heap, Setup);
  Result := CreateWindowExA(WS_EX_CLIENTEDGE, ZTEDIT_CLASS, '', ControlStyle, X, Y, Width, Height, Parent, HMENU(Id), HInstance,
    @Params);
end;

function ZtAttach(Heap: TSharedHeap; const Setup: TZtSetup; Control: HWND): Boolean;
var
  Params: TEditInitParams;
begin
  Params := ParamsOf(Heap, Setup);
  Result := ZTE_Init(Control, @Params) <> 0;
end;

function ZtGetText(Heap: TSharedHeap; Control: HWND; out Text: AnsiString): Boolean;
var
  Block: PAnsiChar;
begin
  Block := ZTE_GetDataString(Control);
  Result := Block <> nil;
  Text := AnsiString(Block);
  SharedHeapFree(Heap, Block);
end;

function ZtGetDate(Heap: TSharedHeap; Control: HWND; out Year, Month, Day: Integer): Boolean;
var
  Text: AnsiString;
  Value: TDateTimeValue;
begin
  FillChar(Value, SizeOf(Value), 0);
  Result := ZtGetText(Heap, Control, Text) and (SharedParseDateTime(@Value, PAnsiChar(Text), DATETIME_KIND_BOTH) = 0);
  Year := Value.year + 1900;
  Month := Value.month + 1;
  Day := Value.day;
end;

function ZtTrySetText(Control: HWND; const Text: AnsiString): Integer;
begin
  Result := ZTE_TrySetDataString(Control, PAnsiChar(Text));
end;

{ Other controls have codes of their own: only a masked edit's count. }
function IsNotice(LParam: LPARAM; Code: Cardinal): Boolean;
begin
  Result := (LParam <> 0) and (PZTNotifyState(LParam)^.hdr.code = Code) and
    (ZTE_FmtGetDataType(PZTNotifyState(LParam)^.hdr.hwndFrom) <> 0);
end;

function ZtRejected(LParam: LPARAM): PZTNotifyRejected;
begin
  Result := nil;
  if IsNotice(LParam, ZTN_REJECTED) then
    Result := PZTNotifyRejected(LParam);
end;

function ZtStateChanged(LParam: LPARAM): PZTNotifyState;
begin
  Result := nil;
  if IsNotice(LParam, ZTN_STATECHANGED) then
    Result := PZTNotifyState(LParam);
end;

end.
