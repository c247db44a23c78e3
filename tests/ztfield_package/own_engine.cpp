// Names like those inside of the library, which are none of its business.

namespace zte {

struct EditInstance {
    int own = 7;
};

int StateOf(const EditInstance& edit)
{
    return edit.own;
}

bool SetModern(EditInstance& edit, bool on)
{
    edit.own = on ? 8 : 9;
    return on;
}

int StandardSettings()
{
    return 3;
}

}  // namespace zte
