Attribute VB_Name = "Sample"
' Sample.bas - two masked edits on a form: a due date and an amount. In the form, with ScaleMode 3 (pixels) and a button cmdOk:
'
'     Private Sub Form_Load()
'         MakeControls Me.hWnd
'     End Sub
'     Private Sub cmdOk_Click()
'         Caption = Entered()
'     End Sub
'     Private Sub Form_Unload(Cancel As Integer)
'         SharedHeapDestroy heap
'     End Sub
Option Explicit

Public heap As LongPtr
Public due As LongPtr
Public amount As LongPtr

Public Sub MakeControls(ByVal form As LongPtr)
    heap = SharedHeapCreate()
    due = ZtCreate(heap, form, 101, DT_DATE, "MM/DD/YYYY", ZTEO_MODERN, 20, 20, 120, 24)
    amount = ZtCreate(heap, form, 102, DT_DECIMAL, "#,##0.00", ZTEO_MODERN Or ZTEO_SPIN, 20, 54, 120, 24, "0~99999")
End Sub

Public Function Entered() As String
    If ZTE_GetState(due) <> ZTS_COMPLETE Then
        Entered = "The date is missing."
    Else
        Entered = "Due " & ZtGetText(heap, due) & ", amount " & ZtGetText(heap, amount)
    End If
End Function
