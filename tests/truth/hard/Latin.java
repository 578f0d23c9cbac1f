class Latin { class Äpfel { String s = "ö}"; char c = 'ü'; } // ß
 enum É { È } /* ñ */ }
