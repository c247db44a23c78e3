Attribute VB_Name = "ZtEdit"
' ztedit.bas - masked edit controls for Visual Basic 6, and for VBA of both widths (32 and 64 bits): what ztedit.h, ztshared.h and
' ztdecimal.h declare, and below that a few functions that take and give strings and dates. The contracts stand in the headers.
'
' The three DLLs of the program's own width are found beside it, or on the path. Bytes of DateTimeValue have no sign here: the hour of a
' value without a time, DATETIME_NO_TIME, reads as 255. Handles that may be missing, and pointers that may be null, are LongPtr: 0, or
' VarPtr of a record.
Option Explicit

#If VBA7 Then
#Else
    ' Handles and pointers: Visual Basic 6 has 32 bits and no word for them.
    Public Enum LongPtr
        [_]
    End Enum
#End If

Public Const ZTEDIT_CLASS As String = "ZTEDIT050"

Public Const ZTEDIT_VERSION_MAJOR As Long = 0
Public Const ZTEDIT_VERSION_MINOR As Long = 5
Public Const ZTEDIT_VERSION_PATCH As Long = 0
Public Const ZTEDIT_VERSION As Long = &H500&

' Data types
Public Const DT_STRING As Long = 1
Public Const DT_NUMBER As Long = 2
Public Const DT_DATE As Long = 3
Public Const DT_TIME As Long = 4
Public Const DT_DATETIME As Long = 5
Public Const DT_DECIMAL As Long = 6

Public Const DATETIME_NO_DATE As Long = -32767
Public Const DATETIME_NO_TIME As Long = -1
Public Const DATETIME_KIND_BOTH As Long = 1
Public Const DATETIME_KIND_DATE As Long = 2
Public Const DATETIME_KIND_TIME As Long = 3

Public Const SHARED_FORMAT_SIZE As Long = 256

' FormatResult.formatFlags
Public Const FORMAT_DONE As Long = &H1&
Public Const FORMAT_HAS_LITERALS As Long = &H4000&
Public Const FORMAT_LITERAL_AFTER As Long = &H8000&

Public Const SPINSTYLE_PICKLIST As Long = &H10000000&
Public Const SPINSTYLE_CODETABLE As Long = &H8000000&

' EditInitParams.options
Public Const ZTEO_AUTOSKIP As Long = &H1&
Public Const ZTEO_SPIN As Long = &H2&
Public Const ZTEO_CODE_PICK As Long = &H4&
Public Const ZTEO_CODE_DISPLAY As Long = &H8&
Public Const ZTEO_MODERN As Long = &H10&

' ZTE_GetState
Public Const ZTS_EMPTY As Long = 0
Public Const ZTS_INCOMPLETE As Long = 1
Public Const ZTS_INVALID As Long = 2
Public Const ZTS_OUT_OF_RANGE As Long = 3
Public Const ZTS_COMPLETE As Long = 4

' Why something was refused
Public Const ZTR_WRONG_KIND As Long = 1
Public Const ZTR_OUT_OF_BOUNDS As Long = 2
Public Const ZTR_FULL As Long = 3
Public Const ZTR_READ_ONLY As Long = 4
Public Const ZTR_DOES_NOT_FIT As Long = 5
Public Const ZTR_IN_DOUBT As Long = 6
Public Const ZTR_DOES_NOT_EXIST As Long = 7
Public Const ZTR_NO_SUCH_ENTRY As Long = 8
Public Const ZTR_END_OF_RANGE As Long = 9
Public Const ZTR_NOT_IN_CODE_PAGE As Long = 10

' ZTE_GetLastProblem
Public Const ZTP_NONE As Long = 0
Public Const ZTP_NO_PARAMETERS As Long = 1
Public Const ZTP_NO_HEAP As Long = 2
Public Const ZTP_FOREIGN_HEAP As Long = 3
Public Const ZTP_NOT_SUBCLASSED As Long = 4
Public Const ZTP_WIDE_TEXTS As Long = 5
Public Const ZTP_DATA_TYPE As Long = 6
Public Const ZTP_MASK As Long = 7

' ZTE_CheckMask
Public Const ZTM_FITS As Long = 0
Public Const ZTM_DATA_TYPE As Long = 1
Public Const ZTM_EMPTY As Long = 2
Public Const ZTM_TOO_LONG As Long = 3
Public Const ZTM_ESCAPE As Long = 4
Public Const ZTM_KEYWORD As Long = 5
Public Const ZTM_OUT_OF_PLACE As Long = 6
Public Const ZTM_TWICE As Long = 7
Public Const ZTM_FIELD_LENGTH As Long = 8
Public Const ZTM_EXCLUDED As Long = 9
Public Const ZTM_FIELD_MISSING As Long = 10
Public Const ZTM_NO_DIGIT As Long = 11

' WM_COMMAND
Public Const ZTN_AUTOSKIP As Long = &H903&
' WM_NOTIFY
Public Const ZTN_REJECTED As Long = &H904&
Public Const ZTN_STATECHANGED As Long = &H905&

Public Type DateTimeValue
    microsecond As Long
    year As Integer
    month As Byte
    day As Byte
    hour As Byte
    minute As Byte
    second As Byte
    spare As Byte
End Type

Public Type DecimalValue
    reserved As Integer
    scale_ As Byte
    sign As Byte
    hi32 As Long
    lo64_low As Long
    lo64_high As Long
End Type

Public Type EditInitParams
    heap As LongPtr
    heapFlags As Long
    reserved As Long
    maskText As LongPtr
    dataType As Long
    initialData As LongPtr
    spinRangeText As LongPtr
    spinIncrement As Long
    codeTableText As LongPtr
    options As Long
End Type

Public Type FormatResult
    text As LongPtr
    formatFlags As Long
    firstFieldPos As Long
End Type

Public Type NMHDR
    hwndFrom As LongPtr
    idFrom As LongPtr
    code As Long
End Type

Public Type ZTNotifyRejected
    hdr As NMHDR
    reason As Long
    position As Long
    character As Long
End Type

Public Type ZTNotifyState
    hdr As NMHDR
    was As Long
    is_ As Long
End Type

Public Type SharedHeapWatcher
    ending As LongPtr ' AddressOf a Sub of a module, which takes ByVal watcher As LongPtr
    previous As LongPtr
    next_ As LongPtr
End Type

#If VBA7 Then
    Public Declare PtrSafe Function ZTE_SuperEditWndProc Lib "ztedit050.dll" (ByVal hwnd As LongPtr, ByVal message As Long, _
        ByVal wParam As LongPtr, ByVal lParam As LongPtr) As LongPtr
    Public Declare PtrSafe Function ZTE_Initialize Lib "ztedit050.dll" () As Long
    Public Declare PtrSafe Function ZTE_CheckMask Lib "ztedit050.dll" (ByVal mask As String, ByVal dataType As Long, _
        ByRef position As Long) As Long
    Public Declare PtrSafe Function ZTE_GetLastProblem Lib "ztedit050.dll" (ByVal hwnd As LongPtr) As Long
    Public Declare PtrSafe Function ZTE_Init Lib "ztedit050.dll" (ByVal hwnd As LongPtr, ByRef setup As EditInitParams) As Long
    Public Declare PtrSafe Sub ZTE_SetAutoskip Lib "ztedit050.dll" (ByVal hwnd As LongPtr, ByVal enable As Long)
    Public Declare PtrSafe Sub ZTE_UtilSetFormatRect Lib "ztedit050.dll" (ByVal hwnd As LongPtr)
    Public Declare PtrSafe Function ZTE_FmtSetMask Lib "ztedit050.dll" (ByVal hwnd As LongPtr, ByVal mask As String, _
        ByVal dataType As Long) As Long
    Public Declare PtrSafe Function ZTE_FmtSetData Lib "ztedit050.dll" (ByVal hwnd As LongPtr, ByVal data As LongPtr) As Long
    Public Declare PtrSafe Function ZTE_FmtSetDataString Lib "ztedit050.dll" (ByVal hwnd As LongPtr, ByVal text As String) As Long
    Public Declare PtrSafe Function ZTE_FmtGetData Lib "ztedit050.dll" (ByVal hwnd As LongPtr) As LongPtr
    Public Declare PtrSafe Function ZTE_FmtGetDataType Lib "ztedit050.dll" (ByVal hwnd As LongPtr) As Integer
    Public Declare PtrSafe Function ZTE_FmtFormatData Lib "ztedit050.dll" (ByVal hwnd As LongPtr, ByVal data As LongPtr) As LongPtr
    Public Declare PtrSafe Function ZTE_FmtUnformatData Lib "ztedit050.dll" (ByVal hwnd As LongPtr, ByVal text As String) As LongPtr
    Public Declare PtrSafe Function ZTE_SetModern Lib "ztedit050.dll" (ByVal hwnd As LongPtr, ByVal enable As Long) As Long
    Public Declare PtrSafe Function ZTE_GetState Lib "ztedit050.dll" (ByVal hwnd As LongPtr) As Long
    Public Declare PtrSafe Function ZTE_TrySetDataString Lib "ztedit050.dll" (ByVal hwnd As LongPtr, ByVal text As String) As Long
    Public Declare PtrSafe Function ZTE_GetDataString Lib "ztedit050.dll" (ByVal hwnd As LongPtr) As LongPtr
    Public Declare PtrSafe Sub ZTE_SetSpin Lib "ztedit050.dll" (ByVal hwnd As LongPtr, ByVal increment As Long, ByVal range As String, _
        ByVal codeTable As String, ByVal style As Long)
    Public Declare PtrSafe Sub ZTE_CreateSpin Lib "ztedit050.dll" (ByVal hwnd As LongPtr)
    Public Declare PtrSafe Sub ZTE_DestroySpin Lib "ztedit050.dll" (ByVal hwnd As LongPtr)
    Public Declare PtrSafe Sub ZTE_PaintSpin Lib "ztedit050.dll" (ByVal hwnd As LongPtr, ByVal dc As LongPtr, ByVal rect As LongPtr)
    Public Declare PtrSafe Function ZTE_PaintSpinOnce Lib "ztedit050.dll" (ByVal rect As LongPtr, ByVal dc As LongPtr) As Integer
    Public Declare PtrSafe Function ZTE_GetSpinWidth Lib "ztedit050.dll" (ByVal hwnd As LongPtr, ByVal rect As LongPtr) As Integer
    Public Declare PtrSafe Sub ZTE_SetSpinBkColor Lib "ztedit050.dll" (ByVal hwnd As LongPtr, ByVal colour As Long)
    Public Declare PtrSafe Function ZTE_SpinDateRange Lib "ztedit050.dll" (ByVal hwnd As LongPtr, _
        ByRef value As DateTimeValue, ByVal text As String) As Integer
    Public Declare PtrSafe Function ZTE_SpinRangeCompare Lib "ztedit050.dll" (ByVal hwnd As LongPtr, _
        ByVal first As LongPtr, ByVal second As LongPtr) As Integer
    Public Declare PtrSafe Function ZTE_SpinWndProc Lib "ztedit050.dll" (ByVal hwnd As LongPtr, ByVal message As Long, _
        ByVal wParam As LongPtr, ByVal lParam As LongPtr) As LongPtr
    Public Declare PtrSafe Function WEP Lib "ztedit050.dll" (ByVal argument As Long) As Long
    Public Declare PtrSafe Function SharedHeapCreate Lib "ztshared.dll" () As LongPtr
    Public Declare PtrSafe Sub SharedHeapDestroy Lib "ztshared.dll" (ByVal heap As LongPtr)
    Public Declare PtrSafe Function SharedHeapIsAlive Lib "ztshared.dll" (ByVal heap As LongPtr) As Long
    Public Declare PtrSafe Sub SharedHeapWatch Lib "ztshared.dll" (ByVal heap As LongPtr, ByRef watcher As SharedHeapWatcher)
    Public Declare PtrSafe Sub SharedHeapUnwatch Lib "ztshared.dll" (ByVal heap As LongPtr, ByRef watcher As SharedHeapWatcher)
    Public Declare PtrSafe Function SharedHeapBlockCount Lib "ztshared.dll" (ByVal heap As LongPtr) As Long
    Public Declare PtrSafe Function SharedHeapAlloc Lib "ztshared.dll" (ByVal heap As LongPtr, ByVal size As Long, _
        ByVal flags As Long) As LongPtr
    Public Declare PtrSafe Function SharedHeapRealloc Lib "ztshared.dll" (ByVal heap As LongPtr, ByVal block As LongPtr, _
        ByVal size As Long, ByVal flags As Long) As LongPtr
    Public Declare PtrSafe Sub SharedHeapFree Lib "ztshared.dll" (ByVal heap As LongPtr, ByVal block As LongPtr)
    Public Declare PtrSafe Function SharedHeapStrDup Lib "ztshared.dll" (ByVal heap As LongPtr, ByVal text As String, _
        ByVal flags As Long) As LongPtr
    Public Declare PtrSafe Function SharedStrCopy Lib "ztshared.dll" (ByVal destination As LongPtr, ByVal source As String) As LongPtr
    Public Declare PtrSafe Function SharedCharConvertOne Lib "ztshared.dll" (ByVal character As Long) As Long
    Public Declare PtrSafe Function SharedCharConvertTwo Lib "ztshared.dll" (ByVal character As Long) As Long
    Public Declare PtrSafe Function SharedIsNumber Lib "ztshared.dll" (ByVal text As String) As Long
    Public Declare PtrSafe Function SharedListCreate Lib "ztshared.dll" (ByVal heap As LongPtr, ByVal flags As Long) As LongPtr
    Public Declare PtrSafe Sub SharedListDestroy Lib "ztshared.dll" (ByVal list As LongPtr)
    Public Declare PtrSafe Sub SharedListAppend Lib "ztshared.dll" (ByVal list As LongPtr, ByVal element As LongPtr)
    Public Declare PtrSafe Function SharedListFirst Lib "ztshared.dll" (ByVal list As LongPtr) As LongPtr
    Public Declare PtrSafe Function SharedListLast Lib "ztshared.dll" (ByVal list As LongPtr) As LongPtr
    Public Declare PtrSafe Function SharedListNext Lib "ztshared.dll" (ByVal list As LongPtr) As LongPtr
    Public Declare PtrSafe Function SharedListPrev Lib "ztshared.dll" (ByVal list As LongPtr) As LongPtr
    Public Declare PtrSafe Function SharedListCurrent Lib "ztshared.dll" (ByVal list As LongPtr) As LongPtr
    Public Declare PtrSafe Function SharedListTell Lib "ztshared.dll" (ByVal list As LongPtr) As Long
    Public Declare PtrSafe Sub SharedListSeek Lib "ztshared.dll" (ByVal list As LongPtr, ByVal position As Long)
    Public Declare PtrSafe Function SharedParseDateTime Lib "ztshared.dll" (ByRef value As DateTimeValue, _
        ByVal text As String, ByVal kind As Long) As Long
    Public Declare PtrSafe Sub SharedDateTimeNow Lib "ztshared.dll" (ByRef value As DateTimeValue)
    Public Declare PtrSafe Function SharedCompileFormat Lib "ztshared.dll" (ByVal compiled As LongPtr, ByVal format As String, _
        ByVal size As Long) As Long
    Public Declare PtrSafe Function SharedFormatDouble Lib "ztshared.dll" (ByVal buffer As LongPtr, ByVal size As Long, _
        ByVal compiled As LongPtr, ByVal value As Double, ByVal flags As Long) As Long
    Public Declare PtrSafe Function SharedFormatDecimal Lib "ztshared.dll" (ByVal buffer As LongPtr, ByVal size As Long, _
        ByVal compiled As LongPtr, ByRef value As DecimalValue, ByVal flags As Long) As Long
    Public Declare PtrSafe Sub SharedReadRegionalSettings Lib "ztshared.dll" ()
    Public Declare PtrSafe Function DecFromString Lib "ztdecimal.dll" (ByRef destination As DecimalValue, _
        ByVal text As String, ByVal decimalPlaces As Long) As LongPtr
    Public Declare PtrSafe Function DecAdd Lib "ztdecimal.dll" (ByRef destination As DecimalValue, _
        ByRef first As DecimalValue, ByRef second As DecimalValue) As LongPtr
    Public Declare PtrSafe Function DecSubtract Lib "ztdecimal.dll" (ByRef destination As DecimalValue, _
        ByRef first As DecimalValue, ByRef second As DecimalValue) As LongPtr
    Public Declare PtrSafe Function DecDivide Lib "ztdecimal.dll" (ByRef destination As DecimalValue, _
        ByRef first As DecimalValue, ByRef second As DecimalValue) As LongPtr
    Public Declare PtrSafe Function DecCompare Lib "ztdecimal.dll" (ByRef first As DecimalValue, ByRef second As DecimalValue) As Integer
    Public Declare PtrSafe Function DecFromUnsigned Lib "ztdecimal.dll" (ByRef destination As DecimalValue, _
        ByVal number As Long) As LongPtr
    Public Declare PtrSafe Function DecSetZero Lib "ztdecimal.dll" (ByRef destination As DecimalValue) As LongPtr
    Public Declare PtrSafe Function DecCopy Lib "ztdecimal.dll" (ByRef destination As DecimalValue, _
        ByRef source As DecimalValue) As LongPtr

    Private Declare PtrSafe Function CreateWindowExA Lib "user32" (ByVal exStyle As Long, ByVal className As String, _
        ByVal caption As String, ByVal style As Long, ByVal x As Long, ByVal y As Long, ByVal width As Long, ByVal height As Long, _
        ByVal parent As LongPtr, ByVal id As LongPtr, ByVal instance As LongPtr, ByRef setup As EditInitParams) As LongPtr
    Private Declare PtrSafe Function lstrlenA Lib "kernel32" (ByVal text As LongPtr) As Long
    Private Declare PtrSafe Sub CopyBytes Lib "kernel32" Alias "RtlMoveMemory" (ByRef destination As Any, ByVal source As LongPtr, _
        ByVal size As LongPtr)
#Else
    Public Declare Function ZTE_SuperEditWndProc Lib "ztedit050.dll" (ByVal hwnd As LongPtr, ByVal message As Long, _
        ByVal wParam As LongPtr, ByVal lParam As LongPtr) As LongPtr
    Public Declare Function ZTE_Initialize Lib "ztedit050.dll" () As Long
    Public Declare Function ZTE_CheckMask Lib "ztedit050.dll" (ByVal mask As String, ByVal dataType As Long, _
        ByRef position As Long) As Long
    Public Declare Function ZTE_GetLastProblem Lib "ztedit050.dll" (ByVal hwnd As LongPtr) As Long
    Public Declare Function ZTE_Init Lib "ztedit050.dll" (ByVal hwnd As LongPtr, ByRef setup As EditInitParams) As Long
    Public Declare Sub ZTE_SetAutoskip Lib "ztedit050.dll" (ByVal hwnd As LongPtr, ByVal enable As Long)
    Public Declare Sub ZTE_UtilSetFormatRect Lib "ztedit050.dll" (ByVal hwnd As LongPtr)
    Public Declare Function ZTE_FmtSetMask Lib "ztedit050.dll" (ByVal hwnd As LongPtr, ByVal mask As String, _
        ByVal dataType As Long) As Long
    Public Declare Function ZTE_FmtSetData Lib "ztedit050.dll" (ByVal hwnd As LongPtr, ByVal data As LongPtr) As Long
    Public Declare Function ZTE_FmtSetDataString Lib "ztedit050.dll" (ByVal hwnd As LongPtr, ByVal text As String) As Long
    Public Declare Function ZTE_FmtGetData Lib "ztedit050.dll" (ByVal hwnd As LongPtr) As LongPtr
    Public Declare Function ZTE_FmtGetDataType Lib "ztedit050.dll" (ByVal hwnd As LongPtr) As Integer
    Public Declare Function ZTE_FmtFormatData Lib "ztedit050.dll" (ByVal hwnd As LongPtr, ByVal data As LongPtr) As LongPtr
    Public Declare Function ZTE_FmtUnformatData Lib "ztedit050.dll" (ByVal hwnd As LongPtr, ByVal text As String) As LongPtr
    Public Declare Function ZTE_SetModern Lib "ztedit050.dll" (ByVal hwnd As LongPtr, ByVal enable As Long) As Long
    Public Declare Function ZTE_GetState Lib "ztedit050.dll" (ByVal hwnd As LongPtr) As Long
    Public Declare Function ZTE_TrySetDataString Lib "ztedit050.dll" (ByVal hwnd As LongPtr, ByVal text As String) As Long
    Public Declare Function ZTE_GetDataString Lib "ztedit050.dll" (ByVal hwnd As LongPtr) As LongPtr
    Public Declare Sub ZTE_SetSpin Lib "ztedit050.dll" (ByVal hwnd As LongPtr, ByVal increment As Long, ByVal range As String, _
        ByVal codeTable As String, ByVal style As Long)
    Public Declare Sub ZTE_CreateSpin Lib "ztedit050.dll" (ByVal hwnd As LongPtr)
    Public Declare Sub ZTE_DestroySpin Lib "ztedit050.dll" (ByVal hwnd As LongPtr)
    Public Declare Sub ZTE_PaintSpin Lib "ztedit050.dll" (ByVal hwnd As LongPtr, ByVal dc As LongPtr, ByVal rect As LongPtr)
    Public Declare Function ZTE_PaintSpinOnce Lib "ztedit050.dll" (ByVal rect As LongPtr, ByVal dc As LongPtr) As Integer
    Public Declare Function ZTE_GetSpinWidth Lib "ztedit050.dll" (ByVal hwnd As LongPtr, ByVal rect As LongPtr) As Integer
    Public Declare Sub ZTE_SetSpinBkColor Lib "ztedit050.dll" (ByVal hwnd As LongPtr, ByVal colour As Long)
    Public Declare Function ZTE_SpinDateRange Lib "ztedit050.dll" (ByVal hwnd As LongPtr, _
        ByRef value As DateTimeValue, ByVal text As String) As Integer
    Public Declare Function ZTE_SpinRangeCompare Lib "ztedit050.dll" (ByVal hwnd As LongPtr, _
        ByVal first As LongPtr, ByVal second As LongPtr) As Integer
    Public Declare Function ZTE_SpinWndProc Lib "ztedit050.dll" (ByVal hwnd As LongPtr, ByVal message As Long, _
        ByVal wParam As LongPtr, ByVal lParam As LongPtr) As LongPtr
    Public Declare Function WEP Lib "ztedit050.dll" (ByVal argument As Long) As Long
    Public Declare Function SharedHeapCreate Lib "ztshared.dll" () As LongPtr
    Public Declare Sub SharedHeapDestroy Lib "ztshared.dll" (ByVal heap As LongPtr)
    Public Declare Function SharedHeapIsAlive Lib "ztshared.dll" (ByVal heap As LongPtr) As Long
    Public Declare Sub SharedHeapWatch Lib "ztshared.dll" (ByVal heap As LongPtr, ByRef watcher As SharedHeapWatcher)
    Public Declare Sub SharedHeapUnwatch Lib "ztshared.dll" (ByVal heap As LongPtr, ByRef watcher As SharedHeapWatcher)
    Public Declare Function SharedHeapBlockCount Lib "ztshared.dll" (ByVal heap As LongPtr) As Long
    Public Declare Function SharedHeapAlloc Lib "ztshared.dll" (ByVal heap As LongPtr, ByVal size As Long, _
        ByVal flags As Long) As LongPtr
    Public Declare Function SharedHeapRealloc Lib "ztshared.dll" (ByVal heap As LongPtr, ByVal block As LongPtr, _
        ByVal size As Long, ByVal flags As Long) As LongPtr
    Public Declare Sub SharedHeapFree Lib "ztshared.dll" (ByVal heap As LongPtr, ByVal block As LongPtr)
    Public Declare Function SharedHeapStrDup Lib "ztshared.dll" (ByVal heap As LongPtr, ByVal text As String, _
        ByVal flags As Long) As LongPtr
    Public Declare Function SharedStrCopy Lib "ztshared.dll" (ByVal destination As LongPtr, ByVal source As String) As LongPtr
    Public Declare Function SharedCharConvertOne Lib "ztshared.dll" (ByVal character As Long) As Long
    Public Declare Function SharedCharConvertTwo Lib "ztshared.dll" (ByVal character As Long) As Long
    Public Declare Function SharedIsNumber Lib "ztshared.dll" (ByVal text As String) As Long
    Public Declare Function SharedListCreate Lib "ztshared.dll" (ByVal heap As LongPtr, ByVal flags As Long) As LongPtr
    Public Declare Sub SharedListDestroy Lib "ztshared.dll" (ByVal list As LongPtr)
    Public Declare Sub SharedListAppend Lib "ztshared.dll" (ByVal list As LongPtr, ByVal element As LongPtr)
    Public Declare Function SharedListFirst Lib "ztshared.dll" (ByVal list As LongPtr) As LongPtr
    Public Declare Function SharedListLast Lib "ztshared.dll" (ByVal list As LongPtr) As LongPtr
    Public Declare Function SharedListNext Lib "ztshared.dll" (ByVal list As LongPtr) As LongPtr
    Public Declare Function SharedListPrev Lib "ztshared.dll" (ByVal list As LongPtr) As LongPtr
    Public Declare Function SharedListCurrent Lib "ztshared.dll" (ByVal list As LongPtr) As LongPtr
    Public Declare Function SharedListTell Lib "ztshared.dll" (ByVal list As LongPtr) As Long
    Public Declare Sub SharedListSeek Lib "ztshared.dll" (ByVal list As LongPtr, ByVal position As Long)
    Public Declare Function SharedParseDateTime Lib "ztshared.dll" (ByRef value As DateTimeValue, _
        ByVal text As String, ByVal kind As Long) As Long
    Public Declare Sub SharedDateTimeNow Lib "ztshared.dll" (ByRef value As DateTimeValue)
    Public Declare Function SharedCompileFormat Lib "ztshared.dll" (ByVal compiled As LongPtr, ByVal format As String, _
        ByVal size As Long) As Long
    Public Declare Function SharedFormatDouble Lib "ztshared.dll" (ByVal buffer As LongPtr, ByVal size As Long, _
        ByVal compiled As LongPtr, ByVal value As Double, ByVal flags As Long) As Long
    Public Declare Function SharedFormatDecimal Lib "ztshared.dll" (ByVal buffer As LongPtr, ByVal size As Long, _
        ByVal compiled As LongPtr, ByRef value As DecimalValue, ByVal flags As Long) As Long
    Public Declare Sub SharedReadRegionalSettings Lib "ztshared.dll" ()
    Public Declare Function DecFromString Lib "ztdecimal.dll" (ByRef destination As DecimalValue, _
        ByVal text As String, ByVal decimalPlaces As Long) As LongPtr
    Public Declare Function DecAdd Lib "ztdecimal.dll" (ByRef destination As DecimalValue, _
        ByRef first As DecimalValue, ByRef second As DecimalValue) As LongPtr
    Public Declare Function DecSubtract Lib "ztdecimal.dll" (ByRef destination As DecimalValue, _
        ByRef first As DecimalValue, ByRef second As DecimalValue) As LongPtr
    Public Declare Function DecDivide Lib "ztdecimal.dll" (ByRef destination As DecimalValue, _
        ByRef first As DecimalValue, ByRef second As DecimalValue) As LongPtr
    Public Declare Function DecCompare Lib "ztdecimal.dll" (ByRef first As DecimalValue, ByRef second As DecimalValue) As Integer
    Public Declare Function DecFromUnsigned Lib "ztdecimal.dll" (ByRef destination As DecimalValue, _
        ByVal number As Long) As LongPtr
    Public Declare Function DecSetZero Lib "ztdecimal.dll" (ByRef destination As DecimalValue) As LongPtr
    Public Declare Function DecCopy Lib "ztdecimal.dll" (ByRef destination As DecimalValue, _
        ByRef source As DecimalValue) As LongPtr

    Private Declare Function CreateWindowExA Lib "user32" (ByVal exStyle As Long, ByVal className As String, _
        ByVal caption As String, ByVal style As Long, ByVal x As Long, ByVal y As Long, ByVal width As Long, ByVal height As Long, _
        ByVal parent As LongPtr, ByVal id As LongPtr, ByVal instance As LongPtr, ByRef setup As EditInitParams) As LongPtr
    Private Declare Function lstrlenA Lib "kernel32" (ByVal text As LongPtr) As Long
    Private Declare Sub CopyBytes Lib "kernel32" Alias "RtlMoveMemory" (ByRef destination As Any, ByVal source As LongPtr, _
        ByVal size As LongPtr)
#End If

' A new child window of a form (parent is its hWnd); 0 when there is none. The texts are borrowed for the call only.
Public Function ZtCreate(ByVal heap As LongPtr, ByVal parent As LongPtr, ByVal id As Long, ByVal dataType As Long, _
        ByVal mask As String, ByVal options As Long, ByVal x As Long, ByVal y As Long, ByVal width As Long, _
        ByVal height As Long, Optional ByVal spinRange As String = "") As LongPtr
    Const WS_CHILD_VISIBLE_TABSTOP_AUTOHSCROLL As Long = &H50010080
    Const WS_EX_CLIENTEDGE As Long = &H200&
    Dim setup As EditInitParams
    Dim maskBytes() As Byte, rangeBytes() As Byte
    ZTE_Initialize ' loads the library, which brings the class
    maskBytes = StrConv(mask & vbNullChar, vbFromUnicode)
    rangeBytes = StrConv(spinRange & vbNullChar, vbFromUnicode)
    setup.heap = heap
    setup.maskText = VarPtr(maskBytes(0))
    setup.dataType = dataType
    If Len(spinRange) > 0 Then setup.spinRangeText = VarPtr(rangeBytes(0))
    setup.spinIncrement = 1
    setup.options = options
    ZtCreate = CreateWindowExA(WS_EX_CLIENTEDGE, ZTEDIT_CLASS, "", WS_CHILD_VISIBLE_TABSTOP_AUTOHSCROLL, x, y, width, height, _
        parent, id, 0, setup)
End Function

' The value as canonical text ("1995-07-04", "-1234.50"): "" for the empty value, Null for an incomplete or invalid one.
Public Function ZtGetText(ByVal heap As LongPtr, ByVal control As LongPtr) As Variant
    Dim block As LongPtr, size As Long
    Dim bytes() As Byte
    ZtGetText = Null
    block = ZTE_GetDataString(control)
    If block = 0 Then Exit Function
    ZtGetText = ""
    size = lstrlenA(block)
    If size > 0 Then
        ReDim bytes(0 To size - 1)
        CopyBytes bytes(0), block, size
        ZtGetText = StrConv(bytes, vbUnicode)
    End If
    SharedHeapFree heap, block
End Function

' The date of a date or date-time control, with its time; Null when there is none.
Public Function ZtGetDate(ByVal heap As LongPtr, ByVal control As LongPtr) As Variant
    Dim text As Variant
    Dim value As DateTimeValue
    ZtGetDate = Null
    text = ZtGetText(heap, control)
    If IsNull(text) Then Exit Function
    If SharedParseDateTime(value, CStr(text), DATETIME_KIND_BOTH) <> 0 Then Exit Function
    ZtGetDate = DateSerial(value.year + 1900, value.month + 1, value.day)
    If value.hour <> 255 Then ZtGetDate = ZtGetDate + TimeSerial(value.hour, value.minute, value.second)
End Function
