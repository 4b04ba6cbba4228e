"""Finding one's way: describe(), find() and the stub for editors."""

import ast
import os
import unittest

import OmbraSdkV2Helper as sdk
import _OmbraSdkV2Guide as guide
import _OmbraSdkV2Helper as native


class GuideTest(unittest.TestCase):

    def test_a_call_is_described_with_what_to_make(self):
        text = guide.description(sdk.bcm_l2_traverse)
        for part in ('bcm_l2_traverse(unit, trav_fn, user_data) -> int',
                     'L2: the MAC table', 'Traversal and notification.',
                     'with a cookie(): int (*)(int,bcm_l2_addr_s *,void *)',
                     'a status'):
            self.assertIn(part, text)
        for name, part in (
                ('bcm_field_group_create', '[status, group]'),
                ('bcm_field_group_create', 'with bcm_field_qset_t()'),
                ('bcm_vlan_port_get', '(status, None, None)'),
                ('bcm_port_speed_get', "box('int')"),
                ('bcm_port_speed_get', 'related      bcm_port_speed_set'),
                ('bcm_linkscan_register', 'set by bind()'),
                ('sh_process_command', 'CMD_OK'),
                ('BCM_E_UNIT', '= -3'),
                ('bcm_ip_addr_t', 'protocol: int')):
            self.assertIn(part, guide.description(name))
        self.assertRaises(ValueError, guide.description, 'bcm_none')

    def test_every_function_has_its_types(self):
        rows = set(name for name, entry in guide.entries.iteritems()
                   if len(entry.types) == len(guide.parameters(
                       getattr(native, name))))
        self.assertEqual(rows, set(guide.entries))
        self.assertGreater(len(rows), 4000)

    def test_search_finds_names_first(self):
        found = sdk.find('vlan gport')
        self.assertEqual(found[0], 'bcm_vlan_gport_add')
        self.assertIn('bcm_l2_addr_delete_by_mac', sdk.find('l2 bulk'))
        self.assertEqual(sdk.find('BCM_E_UNIT')[0], 'BCM_E_UNIT')
        self.assertEqual(sdk.find('no such thing'), [])


class StubTest(unittest.TestCase):

    def test_the_stub_has_what_the_module_has(self):
        folder = os.path.dirname(os.path.abspath(sdk.__file__))
        with open(os.path.join(folder, 'OmbraSdkV2Helper.pyi')) as stub:
            tree = ast.parse(stub.read())
        functions, classes, constants = {}, {}, {}
        for node in tree.body:
            if isinstance(node, ast.FunctionDef):
                functions[node.name] = len(node.args.args)
            elif isinstance(node, ast.ClassDef):
                classes[node.name] = set(
                    target.id for part in node.body
                    if isinstance(part, ast.Assign)
                    for target in part.targets)
            elif isinstance(node, ast.Assign):
                constants[node.targets[0].id] = ast.literal_eval(node.value)
        for name, count in functions.iteritems():
            self.assertEqual(
                count, len(guide.parameters(getattr(native, name))), name)
        self.assertLessEqual(set(guide.entries), set(functions))
        for name, fields in classes.iteritems():
            self.assertLessEqual(fields, set(dir(getattr(sdk, name))), name)
        self.assertEqual(len(classes), len(guide._classes))
        for name, value in constants.iteritems():
            self.assertEqual(getattr(native, name), value)
        self.assertGreater(len(constants), 7000)


if __name__ == '__main__':
    unittest.main()
