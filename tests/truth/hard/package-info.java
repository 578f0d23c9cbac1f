/** class No { } */
@Deprecated @SuppressWarnings("package no;")
package hard /* a */ . sources ; // end
import java.util.*;
