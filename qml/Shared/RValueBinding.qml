import QtQuick

/*! Steps in front of a page's binding while a user's edit is shown, and gives the property back to it afterwards. */
Binding {
    when: false
    restoreMode: Binding.RestoreBinding
}
