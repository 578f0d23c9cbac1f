#include "templates/BuiltInTemplates.h"

namespace tarnwick {

namespace {

const char mainProgram[] =
    "\n"
    "class %FILENAME% {\n"
    "    public static void main(String[] args) {\n"
    "        // TODO: Add your program logic here.\n"
    "    }\n"
    "}\n";

const char applet[] =
    "\n"
    "import java.applet.*;\n"
    "\n"
    "public class %FILENAME% extends Applet\n"
    "{\n"
    "    public void init() {\n"
    "      // TODO: Add initialization code here\n"
    "    }\n"
    "\n"
    "    public void start() {\n"
    "      // TODO: Add your applet start logic here\n"
    "    }\n"
    "\n"
    "    public void stop() {\n"
    "      // TODO: Add your applet stop logic here\n"
    "    }\n"
    "\n"
    "    public void destroy() {\n"
    "      // TODO: Add your cleanup code here\n"
    "    }\n"
    "}\n";

const char servlet[] =
    "\n"
    "import java.io.*;\n"
    "import java.util.*;\n"
    "import javax.servlet.*;\n"
    "import javax.servlet.http.*;\n"
    "\n"
    "public class %FILENAME% extends HttpServlet\n"
    "{\n"
    "    public void doGet (HttpServletRequest  request,\n"
    "                       HttpServletResponse response)\n"
    "      throws ServletException, IOException\n"
    "    {\n"
    "      PrintWriter  out;\n"
    "      String       title = \"%FILENAME%\";\n"
    "\n"
    "      response.setContentType(\"text/html\");\n"
    "      out = response.getWriter();\n"
    "\n"
    "      out.println(\"<HTML>\\n<HEAD><TITLE>\" + title + \"</TITLE></HEAD>\\n<BODY>\");\n"
    "\n"
    "      // TODO: Add program logic to create HTML output\n"
    "\n"
    "      out.println(\"</BODY>\\n</HTML>\");\n"
    "      out.close();\n"
    "    }\n"
    "}\n";

const char htmlPage[] =
    "<html>\n"
    "<head>\n"
    "<title>%FILENAME%</title>\n"
    "</head>\n"
    "<body>\n"
    "<h1>%FILENAME%</h1>\n"
    "<hr>\n"
    "<applet code=%FILENAME%.class width=120 height=120>\n"
    "\talt=\"Your browser understands the &lt;APPLET&gt; tag but isn't running the applet, for some reason.\"\n"
    "\tYour browser is completely ignoring the &lt;APPLET&gt; tag!\n"
    "</applet>\n"
    "<hr>\n"
    "</body>\n"
    "</html>";

}  // namespace

std::vector<TemplateList::Row> builtInTemplates() {
  return {{"Blank file", 0, ""},
          {"Java mainprogram", 1, mainProgram},
          {"Applet", 2, applet},
          {"Http servlet", 3, servlet},
          {".html file", 4, htmlPage}};
}

}  // namespace tarnwick
