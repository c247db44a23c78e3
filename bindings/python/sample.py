"""sample.py - a tkinter form with two masked edits: a due date and an amount. The button puts what was entered into the title.

    py sample.py FOLDER-OF-THE-DLLS
"""
import sys
import tkinter

import ztedit


def main():
    ztedit.load(sys.argv[1] if len(sys.argv) > 1 else ".")
    form = tkinter.Tk()
    form.title("Invoice")
    form.geometry("300x160")
    form.update()  # the window is there from here on
    heap = ztedit.Heap()
    due = ztedit.Edit.create(heap, form.winfo_id(), ztedit.DT_DATE, "MM/DD/YYYY", place=(20, 20, 120, 24))
    amount = ztedit.Edit.create(heap, form.winfo_id(), ztedit.DT_DECIMAL, "#,##0.00", place=(20, 54, 120, 24),
                                options=ztedit.ZTEO_MODERN | ztedit.ZTEO_SPIN, spin_range="0~99999")

    def show_entered():
        complete = due.state == ztedit.ZTS_COMPLETE
        form.title("Due %s, amount %s" % (due.value, amount.value) if complete else "The date is missing.")

    tkinter.Button(form, text="OK", command=show_entered).place(x=20, y=92, width=60, height=26)
    form.mainloop()
    heap.close()


if __name__ == "__main__":
    main()
